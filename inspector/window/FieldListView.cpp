// SPDX-License-Identifier: BSD-3-Clause
#include "FieldListView.h"

#include "FieldEditDelegate.h"
#include "FieldLine.h"
#include "FieldListModel.h"

FieldListView::FieldListView(QWidget* parent)
    : PaneTree(parent)
    , m_delegate(new FieldEditDelegate(this))
{
    setItemDelegateForColumn(FieldListModel::ValueColumn, m_delegate);
    setItemDelegateForColumn(FieldListModel::OtherColumn, new ValueDelegate(this));
    setEditTriggers(DoubleClicked | EditKeyPressed);
}

QString FieldListView::finishEditing() { return m_delegate->finish(); }

bool FieldListView::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event)
{
    const bool isByKey = trigger == EditKeyPressed || trigger == AnyKeyPressed;
    const bool starts = trigger == EditKeyPressed || trigger == DoubleClicked;
    // One line at a time, and that one waits for a better text.
    if (FieldLine* const line = starts ? m_delegate->refusedLine() : nullptr) {
        line->setFocus();
        return true;
    }
    return PaneTree::edit(
        isByKey ? index.siblingAtColumn(FieldListModel::ValueColumn) : index, trigger, event);
}

void FieldListView::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint)
{
    const int row = indexAt(editor->geometry().center()).row();
    const bool goesOn = hint == QAbstractItemDelegate::EditNextItem
        || hint == QAbstractItemDelegate::EditPreviousItem;
    PaneTree::closeEditor(editor, goesOn ? QAbstractItemDelegate::NoHint : hint);
    if (goesOn && row >= 0)
        editNext(row, hint == QAbstractItemDelegate::EditNextItem ? 1 : -1);
}

void FieldListView::editNext(int row, int step)
{
    for (row += step; row >= 0 && row < model()->rowCount(); row += step) {
        const QModelIndex index = model()->index(row, FieldListModel::ValueColumn);
        if (isRowHidden(row, QModelIndex()) || !(index.flags() & Qt::ItemIsEditable))
            continue;
        setCurrentIndex(index);
        QTreeView::edit(index);
        return;
    }
}
