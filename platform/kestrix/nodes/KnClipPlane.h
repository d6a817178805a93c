// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnNode.h"
#include "KnSFields.h"

/// Cuts off what lies behind a plane.
class KnClipPlane : public KnNode {
    KN_NODE(KnClipPlane)
    KnSFBool on;
    KnSFPlane plane;
};
