// SPDX-License-Identifier: BSD-3-Clause
#include "KnMatrixTransform.h"

KN_NODE_SOURCE(KnMatrixTransform, KnNode)

KnMatrixTransform::KnMatrixTransform()
{
    KN_FIELD(matrix, { "The matrix by which what follows in the group is transformed." });
}
