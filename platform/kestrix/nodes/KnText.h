// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnMFields.h"
#include "KnNode.h"
#include "KnSFEnum.h"
#include "KnSFields.h"

/// Lines of text in a plane.
class KnText : public KnNode {
    KN_NODE(KnText)
    KnMFString string; ///< one per line
    KnSFName fontName;
    KnSFFloat size;
    KnSFFloat spacing; ///< lines
    KnSFEnum justification;
    KnMFFloat width; ///< of each line; 0 for its natural width
};
