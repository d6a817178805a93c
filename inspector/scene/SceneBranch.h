// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnGroupSensor.h"
#include "KnNodePtr.h"

#include <memory>
#include <vector>

class KnGroup;
class SceneBranch;
class SceneModel;

/// One place of a node in the tree, which holds a reference on the node. It is made when somebody
/// asks for it.
struct SceneItem {
    SceneItem(KnFieldContainer* itemNode, SceneItem* itemParent, int itemRow);
    ~SceneItem();

    const KnNodePtr node; // null for the top, and if it had gone before anybody asked
    SceneItem* const parent; // null for the top
    int row; // where it stood when it was last asked for
    const bool isGroup; // asked for each row of a layout, where a cast would be felt
    bool opened = false; // somebody has asked what stands below
    std::unique_ptr<SceneBranch> branch; // null unless it is opened and has a group's node
};

/// The rows below one place in the tree, as they have been announced to the views. The group may be
/// ahead of them until the kernel's queue runs; then the model brings them in line, step by step.
/// Behind a filter "the group" means those of its children that the filter accepts.
class SceneBranch {
public:
    using Change = KnGroupSensor::Change;
    using Items = std::vector<std::unique_ptr<SceneItem>>;

    /// Watches `group` and announces the children that it has now. Null stands for the top, below
    /// which are the model's roots. Model and place outlive this object.
    SceneBranch(SceneModel& model, SceneItem& place, KnGroup* group);
    SceneBranch(const SceneBranch&) = delete;
    SceneBranch& operator=(const SceneBranch&) = delete;
    ~SceneBranch();

    SceneModel& model() const { return m_model; }
    SceneItem& place() const { return m_place; }
    int count() const { return m_count; }

    /// Null if nobody has asked for this row yet.
    SceneItem* knownItem(int row) const;
    /// Makes the item if need be.
    SceneItem& item(int row);
    /// Null if the row's node has gone before anybody asked for it.
    KnFieldContainer* node(int row);
    /// Of one of the items here.
    int rowOf(SceneItem& item) const;

    /// The roots, which the top stands for, were replaced.
    void rootsReplaced(int before) { m_change = { 0, before, groupCount() }; }
    /// Where rows and group differ, as tightly as that can be said. What the group does from now
    /// on waits until `finish`.
    Change findChange();
    /// What the group has from a row of its own on.
    std::vector<KnFieldContainer*> groupNodes(int first, int count) const;

    // The steps: removals, moves, then insertions from the front. Each is to be called between the
    // announcements of the model.
    void insert(int row, const std::vector<KnFieldContainer*>& nodes, int first, int count);
    /// The items that have gone, to be destroyed when the views know.
    Items remove(int row, int count);
    void move(int from, int to);
    /// As ListDiff::arrangement() says, from row `first` on.
    void arrange(int first, const std::vector<int>& order);
    void finish();

private:
    static void childrenChanged(void* data, KnSensor* sensor);

    std::unique_ptr<SceneItem> makeItem(KnFieldContainer* node, int row) const;
    int groupCount() const;
    KnFieldContainer* groupNode(int index) const;
    void takeChange();
    void applyFilter();

    SceneModel& m_model;
    SceneItem& m_place;
    KnGroup* m_group; // not owned; the place's node
    int m_count = 0;
    // Owned. Empty, or as many as rows; null where nobody has asked, but not behind a filter. Plain
    // pointers move up and down in one go, where a hundred thousand owning ones take their time.
    std::vector<SceneItem*> m_items;
    std::vector<KnNodePtr> m_accepted; // from findChange to finish, behind a filter
    Change m_change; // what the group has done that isn't announced
    bool m_stepping = false; // between findChange and finish
    KnGroupSensor m_sensor;
};
