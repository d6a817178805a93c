// SPDX-License-Identifier: BSD-3-Clause
#include "KnLight.h"

KnType KnLight::getClassTypeId()
{
    static const KnType type = KnType::create("Light", KnNode::getClassTypeId());
    return type;
}

KnLight::KnLight(KnFieldData& data)
{
    addField(data, "on", on, { "Whether the light shines." });
    addField(data, "intensity", intensity, { "How bright the light is.", "", 0, 1 });
    addField(data, "color", color, { "The red, green and blue of the light.", "", 0, 1 });
    on.setValue(true);
    intensity.setValue(1.0F);
    color.setValue(1.0F, 1.0F, 1.0F);
}
