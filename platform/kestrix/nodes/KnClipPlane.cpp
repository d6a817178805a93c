// SPDX-License-Identifier: BSD-3-Clause
#include "KnClipPlane.h"

KN_NODE_SOURCE(KnClipPlane, KnNode)

KnClipPlane::KnClipPlane()
{
    KN_FIELD(on);
    KN_FIELD(plane);
    on.setValue(true);
}
