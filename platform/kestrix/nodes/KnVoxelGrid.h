// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnMFields.h"
#include "KnNode.h"
#include "KnSFields.h"

/// A block of values in space.
class KnVoxelGrid : public KnNode {
    KN_NODE(KnVoxelGrid)
    KnSFBox3s extent; ///< cells
    KnSFVec3f cellSize;
    KnMFUShort density; ///< one per cell
};
