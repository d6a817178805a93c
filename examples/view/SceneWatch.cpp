// SPDX-License-Identifier: BSD-3-Clause
#include "SceneWatch.h"

#include "KnGroup.h"
#include "NodeKind.h"

#include <utility>

/// Forgets the node when it is destroyed.
class SceneWatch::FieldSensor : public KnFieldSensor {
public:
    FieldSensor(Callback callback, SceneWatch& watch, const KnFieldContainer& node)
        : KnFieldSensor(callback, &watch)
        , m_watch(watch)
        , m_node(node)
    {
    }

protected:
    // Destroys this sensor.
    void fieldDestroyed() override { m_watch.m_nodes.erase(&m_node); }

private:
    SceneWatch& m_watch; // owns this sensor
    const KnFieldContainer& m_node; // may be on its way out
};

SceneWatch::SceneWatch(Callback callback)
    : m_callback(std::move(callback))
{
}

SceneWatch::~SceneWatch() = default;

void SceneWatch::setNodes(const std::vector<KnFieldContainer*>& nodes)
{
    ++m_round;
    for (KnFieldContainer* const node : nodes) {
        const auto [place, isNew] = m_nodes.try_emplace(node);
        place->second.round = m_round;
        if (isNew)
            attach(*node, place->second);
    }
    std::erase_if(m_nodes, [this](const auto& entry) { return entry.second.round != m_round; });
}

bool SceneWatch::isWatched(const KnFieldContainer* node) const { return m_nodes.contains(node); }

void SceneWatch::attach(KnFieldContainer& node, Sensors& entry)
{
    auto* const group = dynamic_cast<KnGroup*>(&node);
    for (KnField* const field : drawnFields(node)) {
        auto sensor
            = std::make_unique<FieldSensor>(group ? nodesChanged : valuesChanged, *this, node);
        sensor->attach(field);
        entry.sensors.push_back(std::move(sensor));
    }
    if (group) {
        auto sensor = std::make_unique<KnGroupSensor>(nodesChanged, this);
        sensor->attach(group);
        entry.sensors.push_back(std::move(sensor));
    }
}

void SceneWatch::valuesChanged(void* data, KnSensor*)
{
    static_cast<SceneWatch*>(data)->m_callback(Change::Values);
}

void SceneWatch::nodesChanged(void* data, KnSensor*)
{
    static_cast<SceneWatch*>(data)->m_callback(Change::Nodes);
}
