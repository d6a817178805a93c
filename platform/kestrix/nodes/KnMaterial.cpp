// SPDX-License-Identifier: BSD-3-Clause
#include "KnMaterial.h"

KN_NODE_SOURCE(KnMaterial, KnNode)

KnMaterial::KnMaterial()
{
    KN_FIELD(ambientColor);
    KN_FIELD(diffuseColor);
    KN_FIELD(specularColor);
    KN_FIELD(emissiveColor);
    KN_FIELD(shininess);
    KN_FIELD(transparency);
    ambientColor.setValue(0.2F, 0.2F, 0.2F);
    diffuseColor.set1Value(0, KbColor(0.8F, 0.8F, 0.8F));
    shininess.set1Value(0, 0.2F);
}
