// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "ChildList.h"
#include "KnType.h"

#include <QCoreApplication>

#include <vector>

/// One of the places of a node in the graph.
struct NodePlace {
    KnNodePtr node;
    ChildList list;
    int index; // in the list; if the list has changed since, the node counts
};

/// What a person does to the scene's structure. Each function makes one step of the undo stack and
/// selects what the person will look for, also after undo. Roots can be changed unless they
/// belong to the program that the inspector is a guest of.
class SceneEdits {
    Q_DECLARE_TR_FUNCTIONS(SceneEdits)
public:
    enum class Roots { Free, Fixed };
    using Places = std::vector<NodePlace>;

    explicit SceneEdits(Roots roots)
        : m_roots(roots)
    {
    }

    /// Whether nodes may come to and go from there.
    bool mayChange(const ChildList& list) const;
    bool mayChange(const Places& places) const;

    void add(const KnType& type, const ListGap& gap);
    void remove(Places places);
    /// Puts each copy behind its original.
    void duplicate(Places places);
    void rename(KnFieldContainer* node, const QString& name);
    /// Puts the nodes in front of `index`, in their order.
    void move(const Places& places, const ChildList& to, int index);
    /// Each by one among its siblings, up for -1 and down for 1. Those that stand at the end in
    /// that direction stop there.
    void shift(Places places, int direction);
    bool canShift(const Places& places, int direction) const;

private:
    static KnFieldContainer* neighborOf(const Places& places);
    static bool wouldMakeCycle(const Places& places, const ChildList& to);

    Roots m_roots;
};
