// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "PaneTree.h"

class FieldEditDelegate;

/// The list of fields. Whichever column is current, the keys are for the value; Tab goes from the
/// line of one value to that of the next. A value that names
/// another node leads there with Ctrl and a click, a double click, or Return.
class FieldListView : public PaneTree {
    Q_OBJECT
public:
    explicit FieldListView(QWidget* parent = nullptr);

    /// To be called before the rows are replaced; see FieldEditDelegate.
    QString finishEditing();

Q_SIGNALS:
    /// A person has tried to edit what is read-only; the text says so.
    void refused(const QString& reason);
    /// A person wants to go where the row leads.
    void linkFollowed(const QModelIndex& index);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;

private:
    bool wantsEdit(const QModelIndex& index, EditTrigger trigger, const QEvent* event) const;
    void editNext(int row, int step);

    FieldEditDelegate* m_delegate; // child
};
