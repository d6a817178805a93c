// SPDX-License-Identifier: BSD-3-Clause
#include "KnClipPlane.h"

KN_NODE_SOURCE(KnClipPlane, KnNode)

KnClipPlane::KnClipPlane()
{
    KN_FIELD(on, { "Whether the plane cuts." });
    KN_FIELD(plane,
        { "The normal of the plane and its distance from the origin; what lies behind it isn't "
          "drawn." });
    on.setValue(true);
}
