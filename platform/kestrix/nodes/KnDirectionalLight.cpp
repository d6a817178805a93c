// SPDX-License-Identifier: BSD-3-Clause
#include "KnDirectionalLight.h"

KN_NODE_SOURCE(KnDirectionalLight, KnLight)

KnDirectionalLight::KnDirectionalLight()
    : KnLight(fieldData())
{
    KN_FIELD(direction, { "The direction in which the rays run." });
    direction.setValue(0.0F, 0.0F, -1.0F);
}
