// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QObject>

#include <vector>

class FieldListModel;
class KnField;
class QAction;
class QMenu;
class QModelIndex;
class QTreeView;

/// What a person can do with the chosen fields of the list, by its keys and its context menu: copy,
/// paste and the like.
class FieldListActions : public QObject {
    Q_OBJECT
public:
    /// A child of the list, whose keys it takes; the model is the list's.
    FieldListActions(QTreeView* list, FieldListModel* model);

    /// For the fields that are chosen as the menu opens.
    void addTo(QMenu& menu);
    /// For all fields of the nodes that the list shows.
    void addNodeEntriesTo(QMenu& menu);

    /// Selects the node that a row of the list leads to.
    void follow(const QModelIndex& index);

Q_SIGNALS:
    /// Something for the person to read; an empty text when the last one is of no use any more.
    void told(const QString& message);

private:
    QAction* addAction(const char* name, const QString& text, const QKeySequence& key,
        void (FieldListActions::*act)());
    enum class Of { SelectedNode, AllNodes };
    std::vector<KnField*> chosenFields(Of which) const;
    void copy();
    void copyAll();
    void paste();
    void pasteOnto(const std::vector<KnField*>& chosen);
    void addRowsMenu(QMenu& menu);
    int chosenRow(const KnField& array) const;
    void reset();
    bool canReset() const;

    QTreeView* m_list;
    FieldListModel* m_model; // outlives this object
    QAction* m_copy; // child
    QAction* m_copyAll; // child
    QAction* m_paste; // child
    QAction* m_reset; // child
    QAction* m_goTo; // child
};
