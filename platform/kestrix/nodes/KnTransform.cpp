// SPDX-License-Identifier: BSD-3-Clause
#include "KnTransform.h"

KN_NODE_SOURCE(KnTransform, KnNode)

KnTransform::KnTransform()
{
    KN_FIELD(translation, { "How far what follows is moved." });
    KN_FIELD(
        rotation, { "The axis about which what follows is turned, and the angle.", "radians" });
    KN_FIELD(scaleFactor, { "How many times larger what follows becomes along each axis." });
    KN_FIELD(scaleOrientation,
        { "The axis and the angle by which the directions of scaling are turned.", "radians" });
    KN_FIELD(center, { "The point that stays in place when what follows is turned and scaled." });
    scaleFactor.setValue(1.0F, 1.0F, 1.0F);
}
