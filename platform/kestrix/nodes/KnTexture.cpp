// SPDX-License-Identifier: BSD-3-Clause
#include "KnTexture.h"

KN_NODE_SOURCE(KnTexture, KnNode)

KnTexture::KnTexture()
{
    KN_FIELD(filename);
    KN_FIELD(image);
    KN_FIELD(wrapS);
    KN_FIELD(wrapT);
    KN_FIELD(blendColor);
    KN_FIELD(scaleFactor);
    for (KnSFEnum* field : { &wrapS, &wrapT })
        field->setEnums({ { "REPEAT", 0 }, { "CLAMP", 1 }, { "MIRROR", 2 } });
    blendColor.setValue(1.0F, 1.0F, 1.0F, 1.0F);
    scaleFactor.setValue(1.0F, 1.0F);
}
