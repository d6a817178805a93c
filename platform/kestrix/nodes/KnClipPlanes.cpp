// SPDX-License-Identifier: BSD-3-Clause
#include "KnClipPlanes.h"

KN_NODE_SOURCE(KnClipPlanes, KnNode)

KnClipPlanes::KnClipPlanes()
{
    KN_FIELD(on);
    KN_FIELD(plane);
    KN_FIELD(priority);
    on.setValue(true);
}
