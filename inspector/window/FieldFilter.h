// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QObject>

class FieldListModel;
class QAction;
class QTreeView;

/// Hides the rows of fields that hold their default, on demand. A field that changes meanwhile
/// shows up; one that gets its default back stays until the list is filled anew, so that nothing
/// goes away under the person's hands.
class FieldFilter : public QObject {
    Q_OBJECT
public:
    /// A child of the list; the model is the list's.
    FieldFilter(QTreeView* list, FieldListModel* model);

    /// The toggle, for a button.
    QAction* action() const { return m_action; }
    /// Shows a row whatever it holds.
    void show(int row);

private:
    void apply();
    void followChange(const QModelIndex& first, const QModelIndex& last);

    QTreeView* m_list;
    FieldListModel* m_model; // outlives this object
    QAction* m_action; // child
};
