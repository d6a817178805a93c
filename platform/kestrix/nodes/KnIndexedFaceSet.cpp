// SPDX-License-Identifier: BSD-3-Clause
#include "KnIndexedFaceSet.h"

KN_NODE_SOURCE(KnIndexedFaceSet, KnNode)

KnIndexedFaceSet::KnIndexedFaceSet()
{
    KN_FIELD(coordIndex);
    KN_FIELD(normalIndex);
    KN_FIELD(packedColor);
    KN_FIELD(group);
}
