// SPDX-License-Identifier: BSD-3-Clause
#include "NodeFilter.h"

#include "KnGroup.h"

#include <utility>

NodeFilter::NodeFilter(KnSensor::Callback changed, void* data)
    : m_changed(changed)
    , m_data(data)
{
}

void NodeFilter::begin(const NodeQuery& query, const std::vector<KnNodePtr>& roots)
{
    m_walk.emplace();
    m_walk->query = query;
    if (!query.isEmpty())
        m_walk->roots = roots;
}

bool NodeFilter::work(QDeadlineTimer deadline)
{
    if (!m_walk)
        return true;
    if (!run(*m_walk, deadline))
        return false;
    m_found = std::move(*m_walk);
    m_walk.reset();
    return true;
}

bool NodeFilter::accepts(KnFieldContainer* node)
{
    if (query().isEmpty() || isMatch(*node))
        return true;
    auto* const group = dynamic_cast<KnGroup*>(node);
    return group && !acceptedChildren(group).empty();
}

const std::vector<int>& NodeFilter::acceptedChildren(KnGroup* group)
{
    const auto known = m_found.answers.find(group);
    if (known != m_found.answers.end() && known->second.holds())
        return known->second.children;
    enter(m_found, group);
    run(m_found, QDeadlineTimer::Forever);
    return m_found.answers.at(group).children;
}

void NodeFilter::enter(Walk& walk, KnGroup* group) const
{
    Answer& answer = walk.answers.try_emplace(group, m_changed, m_data).first->second;
    if (answer.sensor.getAttachedGroup())
        answer.sensor.takeChange();
    else
        answer.sensor.attach(group);
    answer.children.clear();
    walk.frames.push_back({ KnNodePtr(group), group, &answer, 0 });
}

bool NodeFilter::run(Walk& walk, const QDeadlineTimer& deadline) const
{
    while (!walk.frames.empty() || !walk.roots.empty()) {
        if (!walk.frames.empty()) {
            if (!runTop(walk, deadline))
                return false;
            continue;
        }
        if (auto* const group = dynamic_cast<KnGroup*>(walk.roots.back().get()))
            enter(walk, group);
        walk.roots.pop_back();
    }
    return true;
}

/// Looks through the uppermost frame until it is done or another one comes upon it. False if the
/// time is over.
bool NodeFilter::runTop(Walk& walk, const QDeadlineTimer& deadline) const
{
    constexpr int nodesBetweenLooks = 512; // at the clock
    Frame& frame = walk.frames.back();
    for (; frame.next < frame.group->getNumChildren(); ++frame.next) {
        KnFieldContainer* const child = frame.group->getChild(frame.next);
        auto* const group = dynamic_cast<KnGroup*>(child);
        bool accepted = false;
        if (group) {
            const auto known = walk.answers.find(group);
            if (known == walk.answers.end() || !known->second.holds()) {
                enter(walk, group);
                return !deadline.hasExpired();
            }
            accepted = !known->second.children.empty();
        }
        if (accepted || (child && walk.query.matches(*child)))
            frame.answer->children.push_back(frame.next);
        if ((frame.next + 1) % nodesBetweenLooks == 0 && deadline.hasExpired()) {
            ++frame.next;
            return false;
        }
    }
    walk.frames.pop_back();
    return true;
}
