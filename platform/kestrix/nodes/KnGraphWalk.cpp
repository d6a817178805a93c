// SPDX-License-Identifier: BSD-3-Clause
#include "KnGraphWalk.h"

#include "KnGroup.h"

void KnGraphWalk::add(KnFieldContainer* root)
{
    if (root)
        m_waiting.push_back(root);
}

KnFieldContainer* KnGraphWalk::next()
{
    while (!m_waiting.empty()) {
        KnFieldContainer* const node = m_waiting.back();
        m_waiting.pop_back();
        if (!node->isOfType(KnGroup::getClassTypeId()))
            return node;
        if (!m_seen.insert(node).second)
            continue;
        const auto* const group = static_cast<const KnGroup*>(node);
        for (int i = 0; i < group->getNumMadeChildren(); ++i)
            m_waiting.push_back(group->getChild(i));
        return node;
    }
    return nullptr;
}
