// SPDX-License-Identifier: BSD-3-Clause
#include "KnViewpoint.h"

#include <numbers>

KN_NODE_SOURCE(KnViewpoint, KnNode)

KnViewpoint::KnViewpoint()
{
    KN_FIELD(description, { "What the viewpoint is called where people choose one." });
    KN_FIELD(position, { "Where the viewer stands." });
    KN_FIELD(orientation, { "The axis about which the view is turned, and the angle.", "radians" });
    KN_FIELD(nearDistance, { "The distance from the viewer up to which nothing is drawn.", "", 0 });
    KN_FIELD(farDistance, { "The distance from the viewer beyond which nothing is drawn.", "", 0 });
    KN_FIELD(heightAngle,
        { "The angle that can be seen, from the lower edge to the upper one.", "radians", 0,
            std::numbers::pi });
    KN_FIELD(viewport,
        { "The corners of the part of the window that shows the view, as fractions of the window.",
            "", 0, 1 });
    position.setValue(0.0F, 0.0F, 1.0F);
    nearDistance.setValue(0.1);
    farDistance.setValue(1000.0);
    heightAngle.setValue(0.785398F);
    viewport.setValue(0.0F, 0.0F, 1.0F, 1.0F);
}
