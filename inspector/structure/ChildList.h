// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnNodePtr.h"

#include <vector>

/// Where nodes stand in order: the children of a group, or the roots of the scene. It holds a
/// reference on the group.
class ChildList {
public:
    /// Null for the roots.
    explicit ChildList(KnFieldContainer* group)
        : m_group(group)
    {
    }

    KnFieldContainer* group() const { return m_group.get(); }
    bool isRoots() const { return !m_group; }

    int count() const;
    /// Null for an index outside.
    KnFieldContainer* at(int index) const;
    /// -1 if the node isn't in the list. If it is several times, the place next to `near` counts.
    int find(const KnFieldContainer* node, int near) const;

    /// False, and the kernel says why, if the node can't stand here.
    bool insert(KnFieldContainer* node, int index) const;
    bool remove(int index) const;
    /// The entry stands at `to` afterwards.
    bool move(int from, int to) const;

    friend bool operator==(const ChildList& a, const ChildList& b)
    {
        return a.group() == b.group();
    }

private:
    KnNodePtr m_group;
};

/// A gap between two entries of a list, which is found again when others have come or gone.
class ListGap {
public:
    /// In front of the entry at `index`, as the list is now.
    ListGap(const ChildList& list, int index);
    /// Where the entry at `index` stands: between its neighbours.
    static ListGap around(const ChildList& list, int index);
    /// In front of one entry and behind another; either may be null.
    ListGap(const ChildList& list, const KnFieldContainer* before, const KnFieldContainer* after);

    const ChildList& list() const { return m_list; }
    /// The index of the gap. If the list has its entry `without`, that isn't counted.
    int find(int without = -1) const;

private:
    ChildList m_list;
    int m_index;
    // The neighbours. They are only compared: a step need not keep them alive.
    const KnFieldContainer* m_before;
    const KnFieldContainer* m_after;
};
