// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnNode.h"
#include "KnSFields.h"

/// A place to look at the scene from.
class KnViewpoint : public KnNode {
    KN_NODE(KnViewpoint)
    KnSFString description;
    KnSFVec3f position;
    KnSFRotation orientation;
    KnSFDouble nearDistance;
    KnSFDouble farDistance;
    KnSFFloat heightAngle; ///< radians
    KnSFBox2f viewport; ///< in fractions of the window
};
