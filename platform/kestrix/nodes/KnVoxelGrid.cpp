// SPDX-License-Identifier: BSD-3-Clause
#include "KnVoxelGrid.h"

KN_NODE_SOURCE(KnVoxelGrid, KnNode)

KnVoxelGrid::KnVoxelGrid()
{
    KN_FIELD(extent);
    KN_FIELD(cellSize);
    KN_FIELD(density);
    cellSize.setValue(1.0F, 1.0F, 1.0F);
}
