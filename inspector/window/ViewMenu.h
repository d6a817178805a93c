// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QMenu>

#include <vector>

class CrvExtension;

/// The View menu: an entry for each registered extension, which shows and hides it and stays right
/// when the extension's dock is closed by its own button or opens by itself. A dock or tool bar
/// belongs to the extension whose name is its window title.
class ViewMenu : public QMenu {
    Q_OBJECT
public:
    explicit ViewMenu(QWidget* parent);

    void addExtension(CrvExtension* extension);
    void removeExtension(CrvExtension* extension);
    /// A dock or a tool bar.
    void addPane(QWidget* pane);
    void removePane(QWidget* pane);
    /// Shows a pane by way of its extension, as its entry does.
    void showPane(const QWidget* pane);
    /// To be called when panes were shown or hidden without a signal, as a restored layout does
    /// while the window isn't on the screen.
    void takeOverPanes();

    /// The separator below the extensions. What is inserted before it while there are none stands
    /// above them.
    QAction* endOfExtensions() const { return m_end; }

private:
    struct Entry {
        CrvExtension* extension; // unregisters itself before it goes away
        QAction* action; // child
    };

    static bool belongs(const QWidget* pane, const CrvExtension* extension);
    void paneToggled(QWidget* pane);
    void refresh();

    QAction* m_end; // child; the separator below the extensions
    std::vector<Entry> m_entries;
    std::vector<QWidget*> m_panes; // not owned
};
