// SPDX-License-Identifier: BSD-3-Clause
#include "KnTextureCoordinates.h"

KN_NODE_SOURCE(KnTextureCoordinates, KnNode)

KnTextureCoordinates::KnTextureCoordinates()
{
    KN_FIELD(point,
        { "Where in the picture each point of a shape lies: 0 is one edge, and 1 the other." });
}
