// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "MatchStep.h"
#include "SceneEdits.h"
#include "SceneFilterModel.h"
#include "SceneModel.h"

#include <QPersistentModelIndex>
#include <QWidget>

#include <array>
#include <optional>

class NodeNavigation;
class NodePath;
class PaneTree;
class QLabel;
class QLineEdit;
class QMenu;
class SceneActions;
class TreeExpansion;

/// The scene as a tree below a filter line. A person's choice becomes the host's selection, and
/// the host's selection is shown in the tree. A selected node that leaves the scene is given up.
class ScenePanel : public QWidget {
    Q_OBJECT
public:
    explicit ScenePanel(
        SceneEdits::Roots roots = SceneEdits::Roots::Fixed, QWidget* parent = nullptr);

    void focusFilter();
    SceneActions& actions() { return *m_actions; }

    NodeNavigation& navigation() { return *m_navigation; }

    /// Where the selected node stands in the tree of the whole scene; invalid if nowhere.
    QModelIndex place() const { return m_place; }
    /// Selects the node in one place of the graph, and shows it there.
    void goTo(const NodeRows& rows);
    /// What the tree may show: the whole scene, and what a filter leaves of it.
    std::array<SceneModel*, 2> models() { return { &m_model, &m_filter }; }
    /// Of a row of the tree; null for an index that isn't valid.
    KnFieldContainer* nodeAt(const QModelIndex& index);
    /// Where the row's node stands in the graph at this moment; nothing if it isn't there any more.
    std::optional<NodePlace> placeOf(const QModelIndex& index);

Q_SIGNALS:
    /// A menu for the selected nodes is about to be shown; more may be added to it.
    void menuRequested(QMenu* menu);
    /// The nodes whose rows are selected, the host's selected node first. None is null.
    void nodesSelected(const std::vector<KnFieldContainer*>& nodes);

private:
    static QString emptyText();
    void showRoots();
    void setFilterText(const QString& text);
    void showFiltered();
    void showNewMatches(const QModelIndex& parent, int first, int last);
    void showFilterNote();
    void setTreeModel(SceneModel* model);
    SceneModel& treeModel();
    QModelIndex toTree(const QModelIndex& index);

    void currentChanged(const QModelIndex& current);
    void showSelection();
    void findPlace();
    void showPlace();
    void structureAboutToChange();
    void structureChanged();
    void lookForSelection();
    void selectionChanged();
    void announceNodes();
    void showEditInPause();

    SceneModel m_model;
    SceneFilterModel m_filter; // what the tree shows instead while there is a filter text
    QLineEdit* m_filterEdit; // child
    QLabel* m_filterNote; // child; what the filter text lacks
    NodePath* m_path; // child
    PaneTree* m_tree; // child
    TreeExpansion* m_expansion; // child of the tree
    SceneActions* m_actions; // child
    NodeNavigation* m_navigation; // child
    QPersistentModelIndex m_place; // of the selected node, in m_model
    bool m_placed = false; // whether there was a place before the structure changed
    bool m_placeLost = false; // the place went while its node was selected
    bool m_choosing = false; // a person is choosing a row
    bool m_announces = false; // the selected nodes are about to be announced
    bool m_following = false; // the tree is being brought in line with scene or selection
};
