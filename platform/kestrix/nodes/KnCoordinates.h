// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnMFields.h"
#include "KnNode.h"

/// The points of the shapes that follow.
class KnCoordinates : public KnNode {
    KN_NODE(KnCoordinates)
    KnMFVec3f point;
};
