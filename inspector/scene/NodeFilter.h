// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnGroupSensor.h"
#include "KnNodePtr.h"
#include "NodeQuery.h"

#include <QDeadlineTimer>

#include <optional>
#include <unordered_map>
#include <vector>

class KnGroup;

/// Says which nodes a query lets through: those that match it, and those above them. A large graph
/// is looked through in slices; until that is done, all answers are for the query before. It
/// watches the groups on which its answers rest, and asks a group that has changed again.
class NodeFilter {
public:
    /// The callback says that an answer may not hold any more. It gets `data`, and runs from the
    /// kernel's queue.
    NodeFilter(KnSensor::Callback changed, void* data);

    /// The query that the answers are for. An empty one lets everything through.
    const NodeQuery& query() const { return m_found.query; }

    /// Starts to look through the graph below these roots, and gives up what was under way.
    void begin(const NodeQuery& query, const std::vector<KnNodePtr>& roots);
    /// Goes on until it is done, which gives true, or the time is over. Between two calls the graph
    /// may change.
    bool work(QDeadlineTimer deadline);
    bool isWorking() const { return m_walk.has_value(); }
    /// Gives up what is under way.
    void stop() { m_walk.reset(); }

    bool isMatch(KnFieldContainer& node) const { return query().matches(node); }
    bool accepts(KnFieldContainer* node);
    /// The children of a group that are let through, as indices in rising order; valid until the
    /// next call. Not for the empty query.
    const std::vector<int>& acceptedChildren(KnGroup* group);

private:
    struct Answer {
        Answer(KnSensor::Callback changed, void* data)
            : sensor(changed, data)
        {
        }

        /// The group may be another one that stands where a dead one was.
        bool holds() const { return sensor.getAttachedGroup() && !sensor.hasChanged(); }

        KnGroupSensor sensor; // attached to nothing once the group has died
        std::vector<int> children;
    };
    /// A group that is being looked through.
    struct Frame {
        KnNodePtr node;
        KnGroup* group; // the node
        Answer* answer;
        int next; // the child to look at
    };
    struct Walk {
        NodeQuery query;
        std::vector<KnNodePtr> roots; // that it hasn't come to
        std::vector<Frame> frames;
        std::unordered_map<const KnGroup*, Answer> answers;
    };

    void enter(Walk& walk, KnGroup* group) const;
    bool run(Walk& walk, const QDeadlineTimer& deadline) const;
    bool runTop(Walk& walk, const QDeadlineTimer& deadline) const;

    KnSensor::Callback m_changed;
    void* m_data; // not owned
    Walk m_found; // done
    std::optional<Walk> m_walk; // under way
};
