// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QObject>
#include <QString>

class NodePath;
class QAction;
class QMenu;
class ScenePanel;
class SelectionHistory;

/// The ways from one node to another: along the matches of the filter, back and forward through
/// what was selected, and up the path to the root. Its keys work in the whole window.
class NodeNavigation : public QObject {
    Q_OBJECT
public:
    /// `panel` owns this object and the path.
    NodeNavigation(ScenePanel* panel, NodePath* path);

    void fillMenu(QMenu* menu);
    /// What the steps look for; an empty text leaves them what they had.
    void setFilterText(const QString& text);
    /// The row of the tree that is shown as current has changed, or a name.
    void showPath();

private:
    QAction* addAction(const QString& text, const QString& name, const QKeySequence& key);
    void step(bool forward);
    void choose(int depth);

    ScenePanel* m_panel;
    NodePath* m_path;
    SelectionHistory* m_history; // child
    QString m_text; // the last that could be used
    QAction* m_next;
    QAction* m_previous;
    QAction* m_back;
    QAction* m_forward;
};
