// SPDX-License-Identifier: BSD-3-Clause
int versionOfQt(); // of the library of that name

int main() { return versionOfQt(); }
