// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnMFields.h"
#include "KnNode.h"

/// Faces, given by the indices of their points.
class KnIndexedFaceSet : public KnNode {
    KN_NODE(KnIndexedFaceSet)
    KnMFInt32 coordIndex; ///< -1 ends a face
    KnMFInt32 normalIndex;
    KnMFUInt32 packedColor; ///< one per face: RGBA, a byte each
    KnMFUShort group; ///< one per face
};
