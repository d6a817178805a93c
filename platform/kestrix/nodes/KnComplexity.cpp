// SPDX-License-Identifier: BSD-3-Clause
#include "KnComplexity.h"

KN_NODE_SOURCE(KnComplexity, KnNode)

KnComplexity::KnComplexity()
{
    KN_FIELD(type,
        { "How shapes are refined: by their size in space, by their size on the screen, or not at "
          "all, as bounding boxes." });
    KN_FIELD(
        value, { "How finely shapes are drawn, as a fraction of the finest possible.", "", 0, 1 });
    KN_FIELD(textureQuality,
        { "How finely textures are drawn, as a fraction of the finest possible.", "", 0, 1 });
    type.setEnums({ { "OBJECT_SPACE", 0 }, { "SCREEN_SPACE", 1 }, { "BOUNDING_BOX", 2 } });
    value.setValue(0.5F);
    textureQuality.setValue(0.5F);
}
