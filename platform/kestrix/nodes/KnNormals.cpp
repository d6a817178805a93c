// SPDX-License-Identifier: BSD-3-Clause
#include "KnNormals.h"

KN_NODE_SOURCE(KnNormals, KnNode)

KnNormals::KnNormals()
{
    KN_FIELD(vector);
    KN_FIELD(weights);
    weights.setValue(1.0F, 1.0F, 1.0F, 1.0F);
}
