// SPDX-License-Identifier: BSD-3-Clause
#include "KnTexture.h"

KN_NODE_SOURCE(KnTexture, KnNode)

KnTexture::KnTexture()
{
    KN_FIELD(filename,
        { "The file that holds the picture; if it is empty, the field \"image\" is drawn." });
    KN_FIELD(image, { "The picture itself, for a texture without a file." });
    KN_FIELD(wrapS,
        { "What is drawn to the left and right of the picture: the same again, its edge or its "
          "mirror image." });
    KN_FIELD(wrapT,
        { "What is drawn above and below the picture: the same again, its edge or its mirror "
          "image." });
    KN_FIELD(blendColor,
        { "The red, green, blue and opacity that the picture is blended with.", "", 0, 1 });
    KN_FIELD(scaleFactor, { "How much the picture is scaled across and up." });
    for (KnSFEnum* field : { &wrapS, &wrapT })
        field->setEnums({ { "REPEAT", 0 }, { "CLAMP", 1 }, { "MIRROR", 2 } });
    blendColor.setValue(1.0F, 1.0F, 1.0F, 1.0F);
    scaleFactor.setValue(1.0F, 1.0F);
}
