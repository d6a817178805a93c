// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnMFields.h"
#include "KnNode.h"
#include "KnSFields.h"

/// Cuts off what lies behind any of several planes.
class KnClipPlanes : public KnNode {
    KN_NODE(KnClipPlanes)
    KnSFBool on;
    KnMFPlane plane;
    KnMFShort priority; ///< the lowest goes first
};
