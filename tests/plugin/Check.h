// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <cstdio>
#include <cstdlib>

/// Ends a test program without Qt unless the condition holds, and says what isn't so.
inline void check(bool condition, const char* what)
{
    if (condition)
        return;
    std::fprintf(stderr, "not so: %s\n", what);
    std::abort();
}
