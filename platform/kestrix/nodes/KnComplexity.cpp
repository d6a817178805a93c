// SPDX-License-Identifier: BSD-3-Clause
#include "KnComplexity.h"

KN_NODE_SOURCE(KnComplexity, KnNode)

KnComplexity::KnComplexity()
{
    KN_FIELD(type);
    KN_FIELD(value);
    KN_FIELD(textureQuality);
    type.setEnums({ { "OBJECT_SPACE", 0 }, { "SCREEN_SPACE", 1 }, { "BOUNDING_BOX", 2 } });
    value.setValue(0.5F);
    textureQuality.setValue(0.5F);
}
