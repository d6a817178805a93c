// SPDX-License-Identifier: BSD-3-Clause
#include "KnGroup.h"

#include "KnDebugError.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

KN_NODE_SOURCE(KnGroup, KnNode)

KnGroup::KnGroup()
    : KnGroup(fieldData())
{
}

KnGroup::KnGroup(KnFieldData& data)
{
    addField(data, "visible", visible);
    visible.setValue(true);
}

KnFieldContainer* KnGroup::getChild(int index) const
{
    return index >= 0 && index < getNumChildren()
        ? m_children[static_cast<std::size_t>(index)].get()
        : nullptr;
}

int KnGroup::findChild(const KnFieldContainer* child) const
{
    const auto found = std::find_if(m_children.begin(), m_children.end(),
        [child](const KnNodePtr& each) { return each.get() == child; });
    return found == m_children.end() ? -1 : static_cast<int>(found - m_children.begin());
}

bool KnGroup::addChild(KnFieldContainer* child) { return insertChild(child, getNumChildren()); }

bool KnGroup::insertChild(KnFieldContainer* child, int index)
{
    if (!child || isBelow(child)) {
        KnDebugError::post(KnDebugError::Error,
            child ? "A group can't be a child of itself or of one of its descendants"
                  : "A null child was given to a group");
        return false;
    }
    m_children.insert(
        m_children.begin() + std::clamp(index, 0, getNumChildren()), KnNodePtr(child));
    return true;
}

bool KnGroup::removeChild(int index)
{
    if (!getChild(index))
        return false;
    const auto place = m_children.begin() + index;
    const KnNodePtr child = std::move(*place); // released only once the list is in order
    m_children.erase(place);
    return true;
}

bool KnGroup::removeChild(const KnFieldContainer* child) { return removeChild(findChild(child)); }

/// Whether this group is `root` or one of its descendants.
bool KnGroup::isBelow(KnFieldContainer* root) const
{
    std::unordered_set<const KnFieldContainer*> seen; // shared children are visited once
    std::vector<const KnFieldContainer*> waiting { root };
    while (!waiting.empty()) {
        const KnFieldContainer* node = waiting.back();
        waiting.pop_back();
        if (node == this)
            return true;
        if (!node->isOfType(KnGroup::getClassTypeId()) || !seen.insert(node).second)
            continue;
        for (const KnNodePtr& child : static_cast<const KnGroup*>(node)->m_children)
            waiting.push_back(child.get());
    }
    return false;
}
