// SPDX-License-Identifier: BSD-3-Clause
#include "CrvInspectorProgram.h"

int main(int argc, char** argv) { return CrvInspectorProgram::run(argc, argv); }
