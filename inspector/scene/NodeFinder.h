// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <unordered_set>

class KnFieldContainer;

/// Looks for one node in a graph. It remembers where it has looked, so that a part that is shared,
/// or asked for again, costs nothing more. The graph must stay as it is meanwhile.
class NodeFinder {
public:
    explicit NodeFinder(const KnFieldContainer* wanted)
        : m_wanted(wanted)
    {
    }

    const KnFieldContainer* wanted() const { return m_wanted; }
    /// Whether the node is `top` or stands below it. `top` may be null.
    bool isAtOrBelow(const KnFieldContainer* top);

private:
    const KnFieldContainer* m_wanted; // not owned
    std::unordered_set<const KnFieldContainer*> m_without; // groups that don't have it below them
};
