// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnMFields.h"
#include "KnNode.h"
#include "KnSFields.h"

/// Flat figures in pixels, in front of the scene.
class KnDrawing : public KnNode {
    KN_NODE(KnDrawing)
    KnSFVec2i32 origin; ///< pixels
    KnSFVec2s size; ///< pixels
    KnMFVec2i32 outline; ///< pixels
    KnMFVec2s mark; ///< pixels from the origin
    KnMFColorRGBA color; ///< one per figure
};
