// SPDX-License-Identifier: BSD-3-Clause
#include "ChildList.h"

#include "CrvServices.h"
#include "KnDebugError.h"
#include "KnGroup.h"

#include <algorithm>
#include <utility>

namespace {

KnGroup* asGroup(const KnNodePtr& node) { return static_cast<KnGroup*>(node.get()); }

const std::vector<KnNodePtr>& roots() { return CrvServices::getInstance()->getRoots(); }

void setRoots(std::vector<KnNodePtr> roots)
{
    CrvServices::getInstance()->setRoots(std::move(roots));
}

} // namespace

int ChildList::count() const
{
    return m_group ? asGroup(m_group)->getNumChildren() : static_cast<int>(roots().size());
}

KnFieldContainer* ChildList::at(int index) const
{
    if (m_group)
        return asGroup(m_group)->getChild(index);
    return index >= 0 && index < count() ? roots()[static_cast<std::size_t>(index)].get() : nullptr;
}

int ChildList::find(const KnFieldContainer* node, int near) const
{
    const int size = count();
    for (int distance = 0; node && distance <= std::max(near, size - near); ++distance) {
        for (const int index : { near - distance, near + distance }) {
            if (at(index) == node)
                return index;
        }
    }
    return -1;
}

bool ChildList::insert(KnFieldContainer* node, int index) const
{
    if (m_group)
        return asGroup(m_group)->insertChild(node, index);
    if (find(node, 0) >= 0) {
        KnDebugError::post(KnDebugError::Error, "A root can't stand among the roots twice");
        return false;
    }
    std::vector<KnNodePtr> list = roots();
    list.insert(list.begin() + std::clamp(index, 0, count()), KnNodePtr(node));
    setRoots(std::move(list));
    return true;
}

bool ChildList::remove(int index) const
{
    if (m_group)
        return asGroup(m_group)->removeChild(index);
    if (!at(index))
        return false;
    std::vector<KnNodePtr> list = roots();
    list.erase(list.begin() + index);
    setRoots(std::move(list));
    return true;
}

bool ChildList::move(int from, int to) const
{
    if (m_group)
        return asGroup(m_group)->moveChild(from, to);
    if (!at(from) || !at(to))
        return false;
    std::vector<KnNodePtr> list = roots();
    const KnNodePtr node = list[static_cast<std::size_t>(from)];
    list.erase(list.begin() + from);
    list.insert(list.begin() + to, node);
    setRoots(std::move(list));
    return true;
}

ListGap::ListGap(const ChildList& list, int index)
    : m_list(list)
    , m_index(index)
    , m_before(list.at(index - 1))
    , m_after(list.at(index))
{
}

ListGap ListGap::around(const ChildList& list, int index)
{
    ListGap gap(list, index);
    gap.m_after = list.at(index + 1);
    return gap;
}

ListGap::ListGap(
    const ChildList& list, const KnFieldContainer* before, const KnFieldContainer* after)
    : m_list(list)
    , m_index(std::max(list.find(before, 0) + 1, list.find(after, 0)))
    , m_before(before)
    , m_after(after)
{
    if (!before && !after)
        m_index = list.count();
}

int ListGap::find(int without) const
{
    int index = m_list.find(m_before, m_index - 1) + 1;
    if (index == 0) {
        const int after = m_list.find(m_after, m_index);
        index = after >= 0 ? after : std::clamp(m_index, 0, m_list.count());
    }
    return without >= 0 && without < index ? index - 1 : index;
}
