// SPDX-License-Identifier: BSD-3-Clause
int versionOfQt();

int versionOfQt() { return 5; }
