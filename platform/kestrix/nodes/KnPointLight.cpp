// SPDX-License-Identifier: BSD-3-Clause
#include "KnPointLight.h"

KN_NODE_SOURCE(KnPointLight, KnLight)

KnPointLight::KnPointLight()
    : KnLight(fieldData())
{
    KN_FIELD(location, { "Where the light stands." });
    KN_FIELD(attenuation,
        { "How the light fades with the distance: the quadratic, linear and constant factors.", "",
            0 });
    location.setValue(0.0F, 0.0F, 1.0F);
    attenuation.setValue(0.0F, 0.0F, 1.0F);
}
