// SPDX-License-Identifier: BSD-3-Clause
#include "KnClipPlanes.h"

KN_NODE_SOURCE(KnClipPlanes, KnNode)

KnClipPlanes::KnClipPlanes()
{
    KN_FIELD(on, { "Whether the planes cut." });
    KN_FIELD(plane,
        { "The normal of each plane and its distance from the origin; what lies behind isn't "
          "drawn." });
    KN_FIELD(priority,
        { "The order in which the planes cut; the one with the lowest number goes first." });
    on.setValue(true);
}
