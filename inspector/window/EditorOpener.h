// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QList>
#include <QObject>
#include <QPointer>

class QDockWidget;
class QTreeView;
class ViewMenu;

/// Leads from the list of fields into the editor of the selected one and back: a click on the
/// selected field opens its closed editor again, Return goes into it, and Esc, where nothing else
/// takes it, returns to the list.
class EditorOpener : public QObject {
    Q_OBJECT
public:
    /// A child of the list. `viewMenu` outlives it.
    EditorOpener(QTreeView* list, ViewMenu* viewMenu);

    /// Esc leads back to the list from this dock.
    void addDock(QDockWidget* dock);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void followFocus(QWidget* former, QWidget* focus);
    QDockWidget* open();

    QTreeView* const m_list; // the parent
    ViewMenu* const m_viewMenu; // not owned
    // Not owned; plain widgets, since focus also moves while a dock is being destroyed.
    QList<QPointer<QWidget>> m_docks;
};
