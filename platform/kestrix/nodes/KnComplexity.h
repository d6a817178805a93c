// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnNode.h"
#include "KnSFEnum.h"
#include "KnSFields.h"

/// How finely shapes are drawn, as a fraction of the finest possible.
class KnComplexity : public KnNode {
    KN_NODE(KnComplexity)
    KnSFEnum type;
    KnSFFloat value; ///< 0 to 1
    KnSFFloat textureQuality; ///< 0 to 1
};
