// SPDX-License-Identifier: BSD-3-Clause
#include "KnMatrixTransform.h"

KN_NODE_SOURCE(KnMatrixTransform, KnNode)

KnMatrixTransform::KnMatrixTransform() { KN_FIELD(matrix); }
