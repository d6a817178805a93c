// SPDX-License-Identifier: BSD-3-Clause
#pragma once

/// Says which thread may write fields and change groups: the one of the user interface. A debug
/// build posts a KnDebugError at each write from another one. Any thread may call these functions.
class KnWriteThread {
public:
    KnWriteThread() = delete;

    /// Makes the calling thread the one that may write.
    static void setCurrent();
    /// Lets any thread write, as before the first setCurrent.
    static void reset();
    /// Whether the calling thread may write.
    static bool isCurrent();
    /// Complains, in a debug build, if the calling thread may not write.
    static void check();
};
