// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QObject>

class QMainWindow;
class QSettings;

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

    /// Called once, when all docks are there and before the window is shown. False if the window
    /// was left as it is.
    bool restore();
    void save();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void drop();

    QMainWindow* const m_window;
    QSettings* const m_settings;
    const int m_version;
};
