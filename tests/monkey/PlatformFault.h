// SPDX-License-Identifier: BSD-3-Clause
#pragma once

/// The offscreen platform of Qt 6.4 reads behind the end of its list of windows when a dock has
/// floated, was taken away and has come back: QOffscreenBackingStore::clearHash. Nothing can be
/// said of a round in which that happens, so it ends the process quietly, with this status; any
/// other crash is one.
class PlatformFault {
public:
    static constexpr int status = 4;

    static void ignore();
};
