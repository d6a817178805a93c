// SPDX-License-Identifier: BSD-3-Clause
#include "SceneBranch.h"

#include "KnGroup.h"
#include "NodeFilter.h"
#include "SceneModel.h"

#include <algorithm>
#include <cstddef>

SceneItem::SceneItem(KnFieldContainer* itemNode, SceneItem* itemParent, int itemRow)
    : node(itemNode)
    , parent(itemParent)
    , row(itemRow)
    , isGroup(dynamic_cast<KnGroup*>(itemNode) != nullptr)
{
}

SceneItem::~SceneItem() = default;

SceneBranch::SceneBranch(SceneModel& model, SceneItem& place, KnGroup* group)
    : m_model(model)
    , m_place(place)
    , m_group(group)
    , m_sensor(childrenChanged, this)
{
    m_sensor.attach(group);
    applyFilter();
    m_count = groupCount();
    m_items.reserve(m_accepted.size());
    // What the filter accepts is known only now.
    for (int row = 0; row < static_cast<int>(m_accepted.size()); ++row)
        m_items.push_back(makeItem(groupNode(row), row).release());
    m_accepted.clear();
}

SceneBranch::~SceneBranch()
{
    // What it gives dies at once.
    remove(0, m_count);
}

void SceneBranch::childrenChanged(void* data, KnSensor*)
{
    auto* const branch = static_cast<SceneBranch*>(data);
    branch->m_model.follow(*branch);
}

SceneItem* SceneBranch::knownItem(int row) const
{
    return m_items.empty() ? nullptr : m_items[static_cast<std::size_t>(row)];
}

SceneItem& SceneBranch::item(int row)
{
    if (m_items.empty())
        m_items.resize(static_cast<std::size_t>(m_count));
    SceneItem*& item = m_items[static_cast<std::size_t>(row)];
    if (!item)
        item = makeItem(node(row), row).release();
    return *item;
}

KnFieldContainer* SceneBranch::node(int row)
{
    if (const SceneItem* const known = knownItem(row))
        return known->node.get();
    if (!m_stepping)
        takeChange();
    if (row < m_change.first)
        return groupNode(row);
    // Behind the change everything still stands as far from the end.
    return row < m_change.first + m_change.removed ? nullptr
                                                   : groupNode(row - m_count + groupCount());
}

// Rows come and go a few at a time, so an item stands near the place where it was last.
int SceneBranch::rowOf(SceneItem& item) const
{
    const int start = std::min(item.row, m_count - 1);
    const auto is = [&](int row) {
        return row >= 0 && row < m_count && m_items[static_cast<std::size_t>(row)] == &item;
    };
    for (int distance = 0; distance < m_count; ++distance) {
        for (const int row : { start - distance, start + distance }) {
            if (is(row)) {
                item.row = row;
                return row;
            }
        }
    }
    return item.row;
}

SceneBranch::Change SceneBranch::findChange()
{
    takeChange();
    m_stepping = true;
    Change& change = m_change;
    if (m_model.m_filter) {
        applyFilter();
        change = { 0, m_count, groupCount() };
    }
    const auto same = [this](int row, int index) {
        const SceneItem* const known = knownItem(row);
        return known && known->node && known->node.get() == groupNode(index);
    };
    while (change.removed > 0 && change.inserted > 0 && same(change.first, change.first)) {
        ++change.first;
        --change.removed;
        --change.inserted;
    }
    while (change.removed > 0 && change.inserted > 0
        && same(change.first + change.removed - 1, change.first + change.inserted - 1)) {
        --change.removed;
        --change.inserted;
    }
    // Where nobody has looked, a row is as good as another.
    if (m_items.empty() && !m_model.m_filter) {
        const int common = std::min(change.removed, change.inserted);
        change = { change.first + common, change.removed - common, change.inserted - common };
    }
    return change;
}

std::vector<KnFieldContainer*> SceneBranch::groupNodes(int first, int count) const
{
    std::vector<KnFieldContainer*> nodes;
    nodes.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        nodes.push_back(groupNode(first + i));
    return nodes;
}

void SceneBranch::insert(int row, const std::vector<KnFieldContainer*>& nodes, int first, int count)
{
    if (!m_items.empty() || m_model.m_filter) {
        const auto place
            = m_items.insert(m_items.begin() + row, static_cast<std::size_t>(count), nullptr);
        const auto node = nodes.begin() + first;
        for (int i = 0; i < count; ++i)
            place[i] = makeItem(node[i], row + i).release();
    }
    m_count += count;
    // Insertions come last and from the front, so everything up to here is as in the group.
    const int done = row + count;
    m_change.removed -= row - m_change.first;
    m_change.inserted -= done - m_change.first;
    m_change.first = done;
}

SceneBranch::Items SceneBranch::remove(int row, int count)
{
    Items gone;
    if (!m_items.empty()) {
        const auto begin = m_items.begin() + row;
        gone = Items(begin, begin + count);
        m_items.erase(begin, begin + count);
    }
    m_count -= count;
    m_change.removed -= count;
    return gone;
}

void SceneBranch::move(int from, int to)
{
    const auto begin = m_items.begin();
    if (from < to)
        std::rotate(begin + from, begin + from + 1, begin + to + 1);
    else
        std::rotate(begin + to, begin + from, begin + from + 1);
}

void SceneBranch::arrange(int first, const std::vector<int>& order)
{
    std::vector<SceneItem*> arranged;
    arranged.reserve(order.size());
    const auto former = m_items.begin() + first;
    for (const int place : order) {
        arranged.push_back(former[place]);
        arranged.back()->row = first + static_cast<int>(arranged.size()) - 1;
    }
    std::copy(arranged.begin(), arranged.end(), former);
}

std::unique_ptr<SceneItem> SceneBranch::makeItem(KnFieldContainer* node, int row) const
{
    return std::make_unique<SceneItem>(node, &m_place, row);
}

void SceneBranch::finish()
{
    m_change = Change();
    m_stepping = false;
    m_accepted.clear();
}

void SceneBranch::applyFilter()
{
    if (!m_model.m_filter)
        return;
    NodeFilter& filter = *m_model.m_filter;
    if (!m_group) {
        for (const KnNodePtr& root : m_model.m_roots) {
            if (filter.accepts(root.get()))
                m_accepted.push_back(root);
        }
    } else if (filter.query().isEmpty()) {
        for (int i = 0; i < m_group->getNumChildren(); ++i)
            m_accepted.emplace_back(m_group->getChild(i));
    } else {
        for (const int i : filter.acceptedChildren(m_group))
            m_accepted.emplace_back(m_group->getChild(i));
    }
}

int SceneBranch::groupCount() const
{
    if (m_model.m_filter)
        return static_cast<int>(m_accepted.size());
    return m_group ? m_group->getNumChildren() : static_cast<int>(m_model.m_roots.size());
}

KnFieldContainer* SceneBranch::groupNode(int index) const
{
    if (m_group && !m_model.m_filter)
        return m_group->getChild(index);
    const std::vector<KnNodePtr>& nodes = m_model.m_filter ? m_accepted : m_model.m_roots;
    return index >= 0 && index < groupCount() ? nodes[static_cast<std::size_t>(index)].get()
                                              : nullptr;
}

void SceneBranch::takeChange()
{
    const Change change = m_sensor.takeChange();
    if (change.removed > 0 || change.inserted > 0)
        m_change.add(change);
}
