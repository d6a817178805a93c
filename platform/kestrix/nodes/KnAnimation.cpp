// SPDX-License-Identifier: BSD-3-Clause
#include "KnAnimation.h"

KN_NODE_SOURCE(KnAnimation, KnNode)

KnAnimation::KnAnimation()
{
    KN_FIELD(loop);
    KN_FIELD(startTime);
    KN_FIELD(duration);
    KN_FIELD(speed);
    KN_FIELD(keyTime);
    KN_FIELD(keyFraction);
    KN_FIELD(keyRotation);
    KN_FIELD(keyMatrix);
    KN_FIELD(target);
    duration.setValue(KbTime(1.0));
    speed.setValue(1.0);
}
