// SPDX-License-Identifier: BSD-3-Clause
#include "KnNormals.h"

KN_NODE_SOURCE(KnNormals, KnNode)

KnNormals::KnNormals()
{
    KN_FIELD(vector, { "The directions in which the surfaces face." });
    KN_FIELD(weights, { "How much each corner of a face counts." });
    weights.setValue(1.0F, 1.0F, 1.0F, 1.0F);
}
