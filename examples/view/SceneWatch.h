// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <functional>
#include <memory>
#include <unordered_map>
#include <vector>

class KnFieldContainer;
class KnSensor;

/// Tells when something changes that a picture of the scene depends on. It holds no reference on
/// what it watches.
class SceneWatch {
public:
    enum class Change {
        Values, // of nodes that are watched
        Nodes, // some have come, gone, been shown or hidden, so that others are to be watched
    };
    /// Called from the kernel's queue, several times in a batch.
    using Callback = std::function<void(Change change)>;

    explicit SceneWatch(Callback callback);
    ~SceneWatch();
    SceneWatch(const SceneWatch&) = delete;
    SceneWatch& operator=(const SceneWatch&) = delete;

    /// Watches these nodes and no others; a node may be named several times.
    void setNodes(const std::vector<KnFieldContainer*>& nodes);
    /// Whether a node is watched, which it is no longer when it has been destroyed.
    bool isWatched(const KnFieldContainer* node) const;

private:
    class FieldSensor;
    struct Sensors {
        std::vector<std::unique_ptr<KnSensor>> sensors;
        unsigned round = 0; // of setNodes, in which the node was last named
    };

    static void valuesChanged(void* data, KnSensor* sensor);
    static void nodesChanged(void* data, KnSensor* sensor);
    void attach(KnFieldContainer& node, Sensors& entry);

    Callback m_callback;
    std::unordered_map<const KnFieldContainer*, Sensors> m_nodes;
    unsigned m_round = 0;
};
