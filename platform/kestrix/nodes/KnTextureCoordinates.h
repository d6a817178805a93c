// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnMFields.h"
#include "KnNode.h"

/// Where the points of a shape lie in a texture.
class KnTextureCoordinates : public KnNode {
    KN_NODE(KnTextureCoordinates)
    KnMFVec2f point;
};
