// SPDX-License-Identifier: BSD-3-Clause
#include "FieldListView.h"

#include "FieldEditDelegate.h"
#include "FieldLineEdit.h"
#include "FieldListModel.h"

#include <QMouseEvent>

namespace {

bool isLink(const QModelIndex& index) { return index.data(FieldListModel::LinkRole).toBool(); }

} // namespace

FieldListView::FieldListView(QWidget* parent)
    : PaneTree(parent)
    , m_delegate(new FieldEditDelegate(this))
{
    setItemDelegateForColumn(FieldListModel::ValueColumn, m_delegate);
    setItemDelegateForColumn(FieldListModel::OtherColumn, new ValueDelegate(this));
    setEditTriggers(DoubleClicked | EditKeyPressed);
}

QString FieldListView::finishEditing() { return m_delegate->finish(); }

/// By a click on a check mark, too, which begins no edit.
bool FieldListView::wantsEdit(
    const QModelIndex& index, EditTrigger trigger, const QEvent* event) const
{
    if (trigger == EditKeyPressed)
        return true;
    if (index.column() != FieldListModel::ValueColumn)
        return false;
    if (trigger == DoubleClicked || !event)
        return trigger == DoubleClicked;
    const bool hasMark = index.data(Qt::CheckStateRole).isValid();
    if (event->type() == QEvent::KeyPress)
        return hasMark && static_cast<const QKeyEvent*>(event)->key() == Qt::Key_Space;
    if (!hasMark || event->type() != QEvent::MouseButtonRelease)
        return false;
    const QRect cell = visualRect(index);
    const int x = static_cast<const QMouseEvent*>(event)->position().toPoint().x();
    return x < cell.left() + cell.height();
}

void FieldListView::keyPressEvent(QKeyEvent* event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && state() != EditingState && isLink(currentIndex()))
        Q_EMIT linkFollowed(currentIndex());
    else
        PaneTree::keyPressEvent(event);
}

void FieldListView::mousePressEvent(QMouseEvent* event)
{
    const QModelIndex index = indexAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && event->modifiers() == Qt::ControlModifier
        && index.column() == FieldListModel::ValueColumn && isLink(index))
        Q_EMIT linkFollowed(index);
    else
        PaneTree::mousePressEvent(event);
}

bool FieldListView::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event)
{
    const bool isByKey = trigger == EditKeyPressed || trigger == AnyKeyPressed;
    const bool starts = trigger == EditKeyPressed || trigger == DoubleClicked;
    if (trigger == DoubleClicked && isLink(index)) {
        Q_EMIT linkFollowed(index);
        return true;
    }
    if (index.data(FieldListModel::ReadOnlyRole).toBool() && wantsEdit(index, trigger, event)) {
        const QModelIndex name = index.siblingAtColumn(FieldListModel::NameColumn);
        Q_EMIT refused(tr("%1 is read-only").arg(name.data().toString()));
        return false;
    }
    // One line at a time, and that one waits for a better text.
    if (FieldLineEdit* const line = starts ? m_delegate->refusedLine() : nullptr) {
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
