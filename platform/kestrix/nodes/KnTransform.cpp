// SPDX-License-Identifier: BSD-3-Clause
#include "KnTransform.h"

KN_NODE_SOURCE(KnTransform, KnNode)

KnTransform::KnTransform()
{
    KN_FIELD(translation);
    KN_FIELD(rotation);
    KN_FIELD(scaleFactor);
    KN_FIELD(scaleOrientation);
    KN_FIELD(center);
    scaleFactor.setValue(1.0F, 1.0F, 1.0F);
}
