// SPDX-License-Identifier: BSD-3-Clause
#include "KnVoxelGrid.h"

KN_NODE_SOURCE(KnVoxelGrid, KnNode)

KnVoxelGrid::KnVoxelGrid()
{
    KN_FIELD(extent, { "The first and the last cell in each direction.", "cells" });
    KN_FIELD(cellSize, { "The width, the height and the depth of a cell.", "", 0 });
    KN_FIELD(density, { "How dense each cell is.", "", 0 });
    cellSize.setValue(1.0F, 1.0F, 1.0F);
}
