// SPDX-License-Identifier: BSD-3-Clause
#include "KnViewpoint.h"

KN_NODE_SOURCE(KnViewpoint, KnNode)

KnViewpoint::KnViewpoint()
{
    KN_FIELD(description);
    KN_FIELD(position);
    KN_FIELD(orientation);
    KN_FIELD(nearDistance);
    KN_FIELD(farDistance);
    KN_FIELD(heightAngle);
    KN_FIELD(viewport);
    position.setValue(0.0F, 0.0F, 1.0F);
    nearDistance.setValue(0.1);
    farDistance.setValue(1000.0);
    heightAngle.setValue(0.785398F);
    viewport.setValue(0.0F, 0.0F, 1.0F, 1.0F);
}
