// SPDX-License-Identifier: BSD-3-Clause
#include "KnMaterial.h"

KN_NODE_SOURCE(KnMaterial, KnNode)

KnMaterial::KnMaterial()
{
    KN_FIELD(ambientColor,
        { "What is reflected of light that comes from everywhere: red, green and blue.", "", 0,
            1 });
    KN_FIELD(diffuseColor,
        { "The red, green and blue of a lit surface, once for all faces or once for each.", "", 0,
            1 });
    KN_FIELD(specularColor, { "The red, green and blue of highlights.", "", 0, 1 });
    KN_FIELD(emissiveColor, { "What shines without any light: red, green and blue.", "", 0, 1 });
    KN_FIELD(shininess,
        { "How small and sharp highlights are, once for all faces or once for each.", "", 0, 1 });
    KN_FIELD(transparency, { "How much shines through: nothing at 0, everything at 1.", "", 0, 1 });
    ambientColor.setValue(0.2F, 0.2F, 0.2F);
    diffuseColor.set1Value(0, KbColor(0.8F, 0.8F, 0.8F));
    shininess.set1Value(0, 0.2F);
}
