// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnMFields.h"
#include "KnNode.h"
#include "KnSFields.h"

/// How the surfaces of the shapes that follow reflect light.
class KnMaterial : public KnNode {
    KN_NODE(KnMaterial)
    KnSFColor ambientColor;
    KnMFColor diffuseColor; ///< one, or one per face
    KnSFColor specularColor;
    KnSFColor emissiveColor;
    KnMFFloat shininess; ///< 0 to 1; one, or one per face
    KnSFFloat transparency; ///< 0 to 1
};
