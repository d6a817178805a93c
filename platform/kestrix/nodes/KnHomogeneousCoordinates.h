// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnMFields.h"
#include "KnNode.h"

/// Points with a weight, for curved shapes.
class KnHomogeneousCoordinates : public KnNode {
    KN_NODE(KnHomogeneousCoordinates)
    KnMFVec4f point;
};
