// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnNode.h"
#include "KnSFBitMask.h"
#include "KnSFields.h"

/// How the lines, points and faces of what follows are drawn.
class KnDrawStyle : public KnNode {
    KN_NODE(KnDrawStyle)
    KnSFEnum style;
    KnSFBitMask parts;
    KnSFFloat pointSize; ///< pixels
    KnSFFloat lineWidth; ///< pixels
    KnSFUShort linePattern; ///< one bit per pixel
    KnSFInt32 linePatternScale;
    KnSFShort depthOffset;
    KnSFUInt32 selectionMask;
};
