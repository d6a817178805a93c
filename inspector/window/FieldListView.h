// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "PaneTree.h"

class FieldEditDelegate;

/// The list of fields. Whichever column is current, the keys are for the value; Tab goes from the
/// line of one value to that of the next.
class FieldListView : public PaneTree {
    Q_OBJECT
public:
    explicit FieldListView(QWidget* parent = nullptr);

    /// To be called before the rows are replaced; see FieldEditDelegate.
    QString finishEditing();

protected:
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;

private:
    void editNext(int row, int step);

    FieldEditDelegate* m_delegate; // child
};
