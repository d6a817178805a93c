// SPDX-License-Identifier: BSD-3-Clause
#include "NodeFinder.h"

#include "KnGroup.h"

bool NodeFinder::isAtOrBelow(const KnFieldContainer* top)
{
    if (top && top == m_wanted)
        return true;
    const auto* const group = dynamic_cast<const KnGroup*>(top);
    if (!group || m_without.contains(group))
        return false;
    for (int i = 0; i < group->getNumMadeChildren(); ++i) {
        if (isAtOrBelow(group->getChild(i)))
            return true;
    }
    m_without.insert(group);
    return false;
}
