// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QDialog>

class QMenuBar;
class QTreeWidget;
class QTreeWidgetItem;

/// All keys that do something in the window: those of its menus, read from there, and those of its
/// panes.
class ShortcutList : public QDialog {
    Q_OBJECT
public:
    ShortcutList(const QMenuBar& menus, QWidget* parent);

private:
    void addMenu(const QMenu& menu);
    void addPanes();
    QTreeWidgetItem* addGroup(const QString& title);
    static void addKeys(QTreeWidgetItem* group, const QString& keys, const QString& text);

    QTreeWidget* m_list; // child
};
