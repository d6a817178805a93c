// SPDX-License-Identifier: BSD-3-Clause
#include "KnGroup.h"

#include "KnDebugError.h"
#include "KnFieldRecorder.h"
#include "KnGraphWalk.h"
#include "KnWriteThread.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

KN_NODE_SOURCE(KnGroup, KnNode)

KnGroup::KnGroup()
    : KnGroup(fieldData())
{
}

KnGroup::KnGroup(KnFieldData& data)
{
    addField(data, "visible", visible, { "Whether the children are drawn." });
    visible.setValue(true);
}

KnGroup::~KnGroup()
{
    while (!m_sensors.empty())
        m_sensors.back()->detach();
}

KnFieldContainer* KnGroup::getChild(int index) const
{
    lookAtChildren();
    return index >= 0 && index < getNumMadeChildren()
        ? m_children[static_cast<std::size_t>(index)].get()
        : nullptr;
}

int KnGroup::findChild(const KnFieldContainer* child) const
{
    lookAtChildren();
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
    index = std::clamp(index, 0, getNumChildren());
    m_children.insert(m_children.begin() + index, KnNodePtr(child));
    report({ index, 0, 1 });
    return true;
}

bool KnGroup::removeChild(int index)
{
    if (!getChild(index))
        return false;
    const auto place = m_children.begin() + index;
    const KnNodePtr child = std::move(*place); // released only once the list is in order
    m_children.erase(place);
    report({ index, 1, 0 });
    return true;
}

bool KnGroup::removeChild(const KnFieldContainer* child) { return removeChild(findChild(child)); }

bool KnGroup::moveChild(int from, int to)
{
    if (!getChild(from) || !getChild(to))
        return false;
    const auto begin = m_children.begin();
    if (from < to)
        std::rotate(begin + from, begin + from + 1, begin + to + 1);
    else
        std::rotate(begin + to, begin + from, begin + from + 1);
    const int count = std::abs(to - from) + 1;
    report({ std::min(from, to), count, count });
    return true;
}

void KnGroup::replaceChildren(int first, int removed, std::vector<KnNodePtr> children)
{
    const auto place = m_children.begin() + first;
    // Released only once the list is in order.
    const std::vector<KnNodePtr> gone(place, place + removed);
    const auto end = m_children.erase(place, place + removed);
    m_children.insert(end, children.begin(), children.end());
    report({ first, removed, static_cast<int>(children.size()) });
}

void KnGroup::firstLook()
{
    m_waitsForLook = false;
    makeChildren();
}

void KnGroup::report(const KnGroupSensor::Change& change) const
{
    KnWriteThread::check();
    if (KnFieldRecorder* const recorder = KnFieldRecorder::current())
        recorder->childrenChanged();
    for (KnGroupSensor* sensor : m_sensors)
        sensor->childrenReplaced(change);
}

/// Whether this group is `root` or one of its descendants.
bool KnGroup::isBelow(KnFieldContainer* root) const
{
    // Most nodes have nothing below them, and a walk takes memory.
    if (!dynamic_cast<const KnGroup*>(root))
        return false;
    KnGraphWalk walk;
    walk.add(root);
    while (const KnFieldContainer* const node = walk.next()) {
        if (node == this)
            return true;
    }
    return false;
}
