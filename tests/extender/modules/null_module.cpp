// SPDX-License-Identifier: BSD-3-Clause
// A plug-in that refuses to start; there is nothing to destroy then.
#include <cstdlib>

extern "C" void* loadPlugin() { return nullptr; }

extern "C" void unloadPlugin() { std::abort(); }
