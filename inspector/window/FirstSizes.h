// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QList>
#include <QObject>

class QDockWidget;
class QMainWindow;

/// The sizes of a fresh window and of its docks: what they need, as long as that fits into the
/// screen, and then a share of it.
class FirstSizes : public QObject {
    Q_OBJECT
public:
    /// A child of the window.
    explicit FirstSizes(QMainWindow* window);

    /// Called once all of the window's own docks are there, before the window is shown.
    void apply(QDockWidget* scene, QDockWidget* history);
    /// Makes the window so small that it fits into its screen, and its docks with it.
    void fitScreen();
    /// Sizes the dock when it is seen for the first time.
    void follow(QDockWidget* dock);
    /// From now on docks keep the sizes that they have, and the window its own, unless that was
    /// made for a larger screen.
    void keep();

private:
    void resize(QDockWidget* dock);

    void shrinkToScreen();
    void shareSpace();
    void share(
        const QList<QDockWidget*>& docks, const QList<int>& sizes, Qt::Orientation orientation);

    QMainWindow* const m_window; // the parent
    QDockWidget* m_scene = nullptr; // the window's, like the next one
    QDockWidget* m_history = nullptr;
    bool m_ended = false;
};
