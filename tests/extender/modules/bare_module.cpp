// SPDX-License-Identifier: BSD-3-Clause
// A library that is no plug-in.
extern "C" int answer() { return 42; }
