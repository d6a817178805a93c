// SPDX-License-Identifier: BSD-3-Clause
#include "KnIndexedFaceSet.h"

KN_NODE_SOURCE(KnIndexedFaceSet, KnNode)

KnIndexedFaceSet::KnIndexedFaceSet()
{
    KN_FIELD(coordIndex, { "The points of each face, as indices; -1 ends a face.", "", -1 });
    KN_FIELD(normalIndex, { "The normals of the corners, as indices." });
    KN_FIELD(packedColor, { "The red, green, blue and opacity of each face, a byte each." });
    KN_FIELD(group, { "The number of the group to which each face belongs." });
}
