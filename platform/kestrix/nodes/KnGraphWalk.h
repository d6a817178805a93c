// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <unordered_set>
#include <vector>

class KnFieldContainer;

/// Visits all nodes of a graph, in no certain order. What stands below a group that is shared is
/// visited once, a leaf in each of its places. Children that their group makes at a first look are
/// not made for it. The graph must stay as it is meanwhile.
class KnGraphWalk {
public:
    /// Adds a graph; null is ignored. It may share nodes with those before.
    void add(KnFieldContainer* root);
    /// Null when all have been visited.
    KnFieldContainer* next();

private:
    std::unordered_set<const KnFieldContainer*> m_seen; // groups
    std::vector<KnFieldContainer*> m_waiting;
};
