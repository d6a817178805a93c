// SPDX-License-Identifier: BSD-3-Clause
// Preloaded into a program, ends it as soon as its first window is on the screen.
#include "FirstFrame.h"

namespace {

[[gnu::constructor]] void libraryLoaded() { FirstFrame::endProcess(); }

} // namespace
