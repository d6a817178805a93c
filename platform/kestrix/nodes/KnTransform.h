// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnNode.h"
#include "KnSFields.h"

/// Moves, turns and scales what follows in its group.
class KnTransform : public KnNode {
    KN_NODE(KnTransform)
    KnSFVec3f translation;
    KnSFRotation rotation;
    KnSFVec3f scaleFactor;
    KnSFRotation scaleOrientation;
    KnSFVec3f center;
};
