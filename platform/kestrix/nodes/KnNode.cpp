// SPDX-License-Identifier: BSD-3-Clause
#include "KnNode.h"

KnType KnNode::getClassTypeId()
{
    static const KnType type = KnType::create("Node", KnFieldContainer::getClassTypeId());
    return type;
}
