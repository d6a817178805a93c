// SPDX-License-Identifier: BSD-3-Clause
#include "KnLight.h"

KnType KnLight::getClassTypeId()
{
    static const KnType type = KnType::create("Light", KnNode::getClassTypeId());
    return type;
}

KnLight::KnLight(KnFieldData& data)
{
    addField(data, "on", on);
    addField(data, "intensity", intensity);
    addField(data, "color", color);
    on.setValue(true);
    intensity.setValue(1.0F);
    color.setValue(1.0F, 1.0F, 1.0F);
}
