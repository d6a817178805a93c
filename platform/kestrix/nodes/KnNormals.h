// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnMFields.h"
#include "KnNode.h"
#include "KnSFields.h"

/// The normals of the shapes that follow.
class KnNormals : public KnNode {
    KN_NODE(KnNormals)
    KnMFVec3f vector;
    KnSFVec4f weights; ///< of the corners of a face
};
