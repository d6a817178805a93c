// SPDX-License-Identifier: BSD-3-Clause
#include "NodeFilter.h"

#include "KnGroup.h"
#include "SceneText.h"

NodeFilter::Answer::Answer(KnSensor::Callback changed, void* data)
    : sensor(changed, data)
{
}

NodeFilter::NodeFilter(KnSensor::Callback changed, void* data)
    : m_changed(changed)
    , m_data(data)
{
}

void NodeFilter::setText(const QString& text) { m_text = text.trimmed(); }

bool NodeFilter::accepts(KnFieldContainer* node)
{
    if (m_text.isEmpty() || matches(*node))
        return true;
    auto* const group = dynamic_cast<KnGroup*>(node);
    if (!group)
        return false;
    Answer& answer = m_answers.try_emplace(group, m_changed, m_data).first->second;
    // A new group may stand where a dead one was.
    const bool isKnown = answer.sensor.getAttachedGroup() && answer.round == m_round;
    if (isKnown)
        return answer.accepted;
    if (!answer.sensor.getAttachedGroup())
        answer.sensor.attach(group);
    answer.round = m_round;
    answer.accepted = false;
    for (int i = 0; i < group->getNumChildren() && !answer.accepted; ++i)
        answer.accepted = accepts(group->getChild(i));
    return answer.accepted;
}

void NodeFilter::end()
{
    std::erase_if(m_answers, [this](const auto& entry) { return entry.second.round != m_round; });
}

bool NodeFilter::matches(const KnFieldContainer& node) const
{
    return nodeLabel(node).contains(m_text, Qt::CaseInsensitive)
        || typeName(node.getObjectType()).contains(m_text, Qt::CaseInsensitive);
}
