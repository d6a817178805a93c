// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QList>
#include <QObject>

class QMainWindow;
class QMenu;
class QWidget;

/// The way through the panes of a window with the keyboard alone. The tab key goes through the
/// inputs of one pane and on to the next one, in an order that doesn't depend on when a pane got
/// its content; F6 goes to the next pane at once, and to the input that had the focus there last.
class PaneWalk : public QObject {
    Q_OBJECT
public:
    /// A child of the window. The panes in `first` come before all others, in this order; then come
    /// the docks at the right, at the bottom, and the rest.
    PaneWalk(QMainWindow* window, const QList<QWidget*>& first);

    /// Adds the steps to the next and the previous pane to a menu.
    void addActions(QMenu* menu);
    /// What the tab key does. False if the focus is in none of the panes.
    bool step(bool forward);
    /// Goes to the first input of a pane. False if it has none.
    static bool enter(QWidget* pane);

private:
    QList<QWidget*> panes() const;
    void walk(bool forward);

    QMainWindow* const m_window; // the parent
    const QList<QWidget*> m_first; // the window's
};
