// SPDX-License-Identifier: BSD-3-Clause
// A plug-in that could never be taken back.
#include <cstdlib>

extern "C" void* loadPlugin() { std::abort(); }
