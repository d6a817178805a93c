// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "SceneFilterModel.h"
#include "SceneModel.h"

#include <QPersistentModelIndex>
#include <QWidget>

class QLabel;
class QLineEdit;
class PaneTree;
class TreeExpansion;

/// The scene as a tree below a filter line. A person's choice becomes the host's selection, and
/// the host's selection is shown in the tree. A selected node that leaves the scene is given up.
class ScenePanel : public QWidget {
    Q_OBJECT
public:
    explicit ScenePanel(QWidget* parent = nullptr);

    void focusFilter();

Q_SIGNALS:
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

    SceneModel m_model;
    SceneFilterModel m_filter; // what the tree shows instead while there is a filter text
    QLineEdit* m_filterEdit; // child
    QLabel* m_filterNote; // child; what the filter text lacks
    PaneTree* m_tree; // child
    TreeExpansion* m_expansion; // child of the tree
    QPersistentModelIndex m_place; // of the selected node, in m_model
    bool m_placed = false; // whether there was a place before the structure changed
    bool m_placeLost = false; // the place went while its node was selected
    bool m_choosing = false; // a person is choosing a row
    bool m_announces = false; // the selected nodes are about to be announced
    bool m_following = false; // the tree is being brought in line with scene or selection
};
