// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QMenu>

class QMainWindow;
class QMessageBox;

/// The Help menu: all keys, where the documentation is, and what this is. Its boxes hold nothing
/// up.
class HelpMenu : public QMenu {
    Q_OBJECT
public:
    /// A child of the window, whose menus it lists.
    explicit HelpMenu(QMainWindow* window);

private:
    void showShortcuts();
    void showDocumentation();
    void showAbout();
    void showBox(const QString& name, const QString& title, const QString& text);

    QMainWindow* const m_window; // the parent
};
