// SPDX-License-Identifier: BSD-3-Clause
#include "KnGroup.h"

#include "KnDebugError.h"

#include <algorithm>
#include <unordered_set>

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

KnGroup::~KnGroup()
{
    for (KnFieldContainer* child : m_children)
        child->unref();
}

KnFieldContainer* KnGroup::getChild(int index) const
{
    return index >= 0 && index < getNumChildren() ? m_children[static_cast<std::size_t>(index)]
                                                  : nullptr;
}

int KnGroup::findChild(const KnFieldContainer* child) const
{
    const auto found = std::find(m_children.begin(), m_children.end(), child);
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
    child->ref();
    m_children.insert(m_children.begin() + std::clamp(index, 0, getNumChildren()), child);
    return true;
}

bool KnGroup::removeChild(int index)
{
    KnFieldContainer* child = getChild(index);
    if (!child)
        return false;
    m_children.erase(m_children.begin() + index);
    child->unref();
    return true;
}

bool KnGroup::removeChild(const KnFieldContainer* child) { return removeChild(findChild(child)); }

/// Whether this group is `root` or one of its descendants.
bool KnGroup::isBelow(KnFieldContainer* root) const
{
    std::unordered_set<const KnFieldContainer*> seen; // shared children are looked into once
    std::vector<const KnFieldContainer*> waiting { root };
    while (!waiting.empty()) {
        const KnFieldContainer* node = waiting.back();
        waiting.pop_back();
        if (node == this)
            return true;
        if (!node->isOfType(KnGroup::getClassTypeId()) || !seen.insert(node).second)
            continue;
        const auto& children = static_cast<const KnGroup*>(node)->m_children;
        waiting.insert(waiting.end(), children.begin(), children.end());
    }
    return false;
}
