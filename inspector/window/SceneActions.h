// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "SceneEdits.h"

#include <QModelIndexList>
#include <QObject>

class PaneTree;
class QAction;
class QMenu;
class ScenePanel;

/// What a person can do to the nodes of the scene's tree, as actions: for the tree's context menu,
/// its keys and the window's menus. They act on all rows that are selected.
class SceneActions : public QObject {
    Q_OBJECT
public:
    /// `panel` owns this object and has the tree.
    SceneActions(ScenePanel* panel, PaneTree* tree, SceneEdits::Roots roots);

    SceneEdits& edits() { return m_edits; }
    /// Adds the actions that change the scene.
    void fillEditMenu(QMenu* menu);
    /// Adds the actions that show other parts of it.
    void fillViewMenu(QMenu* menu);

private:
    /// With keys that work while the tree has the focus, and not its name line.
    QAction* addAction(const QString& text, const QString& name, const QList<QKeySequence>& keys);
    void buildActions();
    void showMenu(const QPoint& position);
    void updateActions();
    /// In the order of the rows; nothing twice, and nothing that stands below another one of them.
    SceneEdits::Places places() const;
    ListGap gapForNew() const;

    void askForType();
    void renameCurrent();
    void expandBelow();
    void collapseBelow();
    void moveRows(const QModelIndexList& rows, const QModelIndex& parent, int row);

    ScenePanel* m_panel;
    PaneTree* m_tree;
    SceneEdits m_edits;
    QAction* m_add;
    QAction* m_duplicate;
    QAction* m_rename;
    QAction* m_delete;
    QAction* m_moveUp;
    QAction* m_moveDown;
    QAction* m_expand;
    QAction* m_collapse;
};
