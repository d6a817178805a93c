// SPDX-License-Identifier: BSD-3-Clause
#include "KnHomogeneousCoordinates.h"

KN_NODE_SOURCE(KnHomogeneousCoordinates, KnNode)

KnHomogeneousCoordinates::KnHomogeneousCoordinates()
{
    KN_FIELD(point, { "The points of curved shapes, each with its weight." });
}
