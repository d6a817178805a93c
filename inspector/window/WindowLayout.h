// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QObject>

#include <vector>

class PaneColumns;
class QMainWindow;
class QSettings;
class QSplitter;

/// Keeps the geometry of a window and the places of its docks in the settings, from one start to
/// the next. Qt trusts such data, and damaged data can end the program, at every start anew; so Qt
/// only gets what is as it was saved, and a layout that the program didn't survive isn't tried
/// again. What isn't used is dropped, with a message on `std::cerr`.
class WindowLayout : public QObject {
    Q_OBJECT
public:
    /// A child of the window. `version` tells layouts of different sets of docks apart; `settings`
    /// isn't owned.
    WindowLayout(QMainWindow* window, QSettings* settings, int version);

    /// Keeps the widths of a list's columns, too. They outlive the last use of this object, as the
    /// splitters of the window do, which it keeps by object name.
    void addColumns(PaneColumns* columns) { m_columns.push_back(columns); }

    /// Called once, when all docks are there and before the window is shown. False if the window
    /// was left as it is.
    bool restore();
    void save();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void drop();
    void restoreSizes();
    void saveSizes();

    QMainWindow* const m_window;
    QSettings* const m_settings;
    const int m_version;
    std::vector<PaneColumns*> m_columns; // not owned
};
