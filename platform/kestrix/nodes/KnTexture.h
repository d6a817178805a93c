// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnNode.h"
#include "KnSFEnum.h"
#include "KnSFImage.h"
#include "KnSFields.h"

/// The picture on the shapes that follow.
class KnTexture : public KnNode {
    KN_NODE(KnTexture)
    KnSFFilePathString filename; ///< if empty, `image` is used
    KnSFImage image;
    KnSFEnum wrapS;
    KnSFEnum wrapT;
    KnSFColorRGBA blendColor;
    KnSFVec2f scaleFactor;
};
