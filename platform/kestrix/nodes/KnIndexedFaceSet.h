// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnMFields.h"
#include "KnNode.h"

/// Faces made of points by their numbers.
class KnIndexedFaceSet : public KnNode {
    KN_NODE(KnIndexedFaceSet)
    KnMFInt32 coordIndex; ///< -1 ends a face
    KnMFInt32 normalIndex;
    KnMFUInt32 packedColor; ///< RGBA, a byte each, one a face
    KnMFUShort group; ///< one a face
};
