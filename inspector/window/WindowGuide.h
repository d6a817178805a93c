// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QObject>

class EditorOpener;
class PaneWalk;
class QDockWidget;
class QMainWindow;
class StatusLine;
class ViewMenu;

/// Leads through a window whose panes are all built: the keys that go from pane to pane, and the
/// status bar that tells of them.
class WindowGuide : public QObject {
    Q_OBJECT
public:
    /// A child of the window. The scene comes first, and then the central widget with the fields.
    WindowGuide(QMainWindow* window, QDockWidget* scene, ViewMenu* viewMenu);

    /// For each dock in which editors stand.
    void addEditorDock(QDockWidget* dock);
    /// What the tab key does. False if the focus is in none of the panes.
    bool step(bool forward);

private:
    PaneWalk* m_walk; // child of the window
    EditorOpener* m_opener; // child of the list of fields
    StatusLine* m_statusLine; // the window's
};
