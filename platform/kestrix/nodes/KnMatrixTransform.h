// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnNode.h"
#include "KnSFields.h"

/// Transforms what follows in its group by a matrix.
class KnMatrixTransform : public KnNode {
    KN_NODE(KnMatrixTransform)
    KnSFMatrix matrix;
};
