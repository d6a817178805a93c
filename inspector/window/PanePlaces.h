// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QPointer>
#include <QWidget>

#include <vector>

class QMainWindow;

/// Lets the docks and tool bars that extensions take out of a window come back where they stood.
/// Restoring a saved layout would do so, too, but takes longer, and Qt draws the buttons of all
/// docks anew each time.
class PanePlaces {
public:
    /// The window outlives this object.
    explicit PanePlaces(QMainWindow* window)
        : m_window(window)
    {
    }

    /// From now on panes that are removed only hide.
    void keep() { m_keeps = true; }
    /// Ends that: a pane that hasn't come back goes. False if no places were kept.
    bool giveBack();

    /// True if the pane is the extension's again, false if its place is kept.
    bool remove(QWidget* pane);
    /// Whether the pane stands in its place again; otherwise it is to be added.
    bool takeBack(const QWidget* pane);

private:
    struct Place {
        QPointer<QWidget> pane; // the extension's
        bool wasHidden;
        bool isTaken;
    };

    void release(QWidget* pane);

    QMainWindow* m_window; // not owned
    std::vector<Place> m_places;
    bool m_keeps = false;
};
