// SPDX-License-Identifier: BSD-3-Clause
#include "WfMFieldTable.h"

#include "AccessButtonPrivate.h"
#include "CellEditorKeeper.h"
#include "ColumnFit.h"
#include "CrvMFAddRowsCommand.h"
#include "CrvMFDeleteRowsCommand.h"
#include "CrvMFSwapRowsCommand.h"
#include "CrvServices.h"
#include "KnMField.h"
#include "WfMFieldTableItemDelegate.h"
#include "WfMFieldWidget.h"
#include "WfSlider.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>

#include <cstdio>

WfMFieldTable::WfMFieldTable(WfMFieldWidget* widget, QWidget* parent, const char* name)
    : QTableWidget(parent)
    , m_widget(widget)
    , m_delegate(new WfMFieldTableItemDelegate(widget, this))
    , m_editorKeeper(new CellEditorKeeper(widget, this))
{
    const QLatin1String objectName(name);
    setObjectName(objectName.isEmpty() ? QStringLiteral("WfMFieldTable") : QString(objectName));
    setItemDelegate(m_delegate);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setCurrentCell(0, 0);
    new ColumnFit(this);
}

WfMFieldTable::~WfMFieldTable() = default;

void WfMFieldTable::setEditorKind(int kind) { m_delegate->setEditorKind(kind); }

void WfMFieldTable::setIntRange(int min, int max) { m_delegate->setIntRange(min, max); }

void WfMFieldTable::setRealRange(double min, double max) { m_delegate->setRealRange(min, max); }

void WfMFieldTable::setBounded(bool bounded) { m_delegate->setBounded(bounded); }

KnMField* WfMFieldTable::field() const { return m_widget->shownField(); }

void WfMFieldTable::setAccessLimits(int minimum, int maximum)
{
    AccessButtonPrivate* const box = m_widget->m_accessBox;
    if (!box || (box->minimum() == minimum && box->maximum() == maximum))
        return;
    // A number that is cut to the new limits is no jump of the person's.
    const QSignalBlocker blocker(box);
    box->setRange(minimum, maximum);
}

void WfMFieldTable::setNumRows(int row)
{
    if (row < 0)
        return;
    setAccessLimits(row != 0 ? 1 : 0, row);
    m_editorKeeper->follow();
    if (row != rowCount()) {
        m_editorKeeper->limitRows(row);
        setRowCount(row);
    }
}

void WfMFieldTable::showTableRow(int value)
{
    const int row = value - 1;
    if (row < 0 || row >= rowCount())
        return;
    scrollTo(model()->index(row, 0), QAbstractItemView::EnsureVisible);
    setCurrentCell(row, 0);
}

/// Brings table and field in line before rows are changed: what is being typed goes to the row that
/// it was typed for, and a count that the field has changed since the last refresh is taken over.
/// False without a field that is shown.
bool WfMFieldTable::prepareRowOperation()
{
    if (!field())
        return false;
    m_editorKeeper->close();
    if (field()->getNum() != rowCount())
        setNumRows(field()->getNum());
    return true;
}

void WfMFieldTable::moveRow(int row, int target)
{
    if (!prepareRowOperation() || row < 0 || row >= rowCount() || target < 0
        || target >= rowCount())
        return;
    swapRows(row, target);
    setCurrentCell(target, 0);
    m_widget->m_accessBox->setNewValue(target);
}

void WfMFieldTable::swapUpRow()
{
    const int row = m_widget->m_accessBox->value() - 1;
    std::fprintf(stderr, "WfMFieldTable::swapUpRow() %d\n", row);
    moveRow(row, row - 1);
}

void WfMFieldTable::swapDownRow()
{
    const int row = m_widget->m_accessBox->value() - 1;
    std::fprintf(stderr, "WfMFieldTable::swapDownRow() %d\n", row);
    moveRow(row, row + 1);
}

void WfMFieldTable::swapRows(int row1, int row2)
{
    CrvServices::getInstance()->executeCommand(new CrvMFSwapRowsCommand(field(), row1, row2));
}

void WfMFieldTable::addRow()
{
    if (!prepareRowOperation())
        return;
    const int current = currentRow();
    const int newRow = current + 1;
    clearContents();
    insertRow(newRow);
    for (int column = 0; column < columnCount(); ++column)
        setItem(newRow, column, new QTableWidgetItem);
    setAccessLimits(1, m_widget->m_accessBox->maximum() + 1);
    CrvServices::getInstance()->executeCommand(new CrvMFAddRowsCommand(field(), newRow, 1));
    if (newRow < 1) {
        setCurrentCell(newRow, 0);
        Q_EMIT currentCellChanged(newRow, 0, 0, 0);
    } else {
        setCurrentCell(current, 0);
        Q_EMIT currentCellChanged(current, 0, newRow, 0);
    }
}

void WfMFieldTable::deleteRow()
{
    if (!prepareRowOperation() || rowCount() == 0)
        return;
    if (!m_multiSelect) {
        const int row = currentRow();
        if (row != -1)
            deleteRows(row, 1);
        return;
    }
    const QList<QTableWidgetSelectionRange> ranges = selectedRanges();
    if (!ranges.isEmpty())
        deleteRows(ranges.first().topRow(), ranges.first().rowCount());
}

void WfMFieldTable::deleteRows(int firstRow, int count)
{
    // With the last row the box has nothing left to point at.
    AccessButtonPrivate* const box = m_widget->m_accessBox;
    const int maximum = box->maximum() - count;
    setAccessLimits(qMin(box->minimum(), maximum), maximum);
    CrvServices::getInstance()->executeCommand(
        new CrvMFDeleteRowsCommand(field(), firstRow, count));
    model()->removeRows(firstRow, count, QModelIndex());
}

/// The parts of an open cell editor pass on the keys that they have no use for; those are not meant
/// for the rows.
bool WfMFieldTable::isKeyForRows() const
{
    const QWidget* const focus = QApplication::focusWidget();
    return !focus || !viewport()->isAncestorOf(focus);
}

void WfMFieldTable::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Plus:
        if (isKeyForRows())
            addRow();
        break;
    case Qt::Key_Minus:
    case Qt::Key_Delete:
        if (isKeyForRows())
            deleteRow();
        break;
    case Qt::Key_Shift:
        if (isKeyForRows()) {
            setSelectionMode(QAbstractItemView::ContiguousSelection);
            m_multiSelect = true;
        }
        break;
    default:
        QAbstractItemView::keyPressEvent(event);
        break;
    }
    event->accept();
}

void WfMFieldTable::keyReleaseEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Shift)
        QWidget::keyReleaseEvent(event);
    else if (isKeyForRows())
        endMultiSelect();
    event->accept();
}

void WfMFieldTable::focusOutEvent(QFocusEvent* event)
{
    // Whoever has the focus next is told when Shift is released.
    if (m_multiSelect)
        endMultiSelect();
    QTableWidget::focusOutEvent(event);
}

void WfMFieldTable::endMultiSelect()
{
    setSelectionMode(QAbstractItemView::NoSelection);
    m_multiSelect = false;
}

void WfMFieldTable::commitData(QWidget* editor)
{
    if (!editor || editor->isHidden())
        return;
    // What the keeper itself ends it has looked at.
    if (editor == m_editorKeeper->openEditor() && !m_editorKeeper->follow())
        return;
    QAbstractItemView::commitData(editor);
}

void WfMFieldTable::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint)
{
    m_editorKeeper->letGo(editor);
    const bool isTakenOut = editor && editor->isHidden();
    if (isTakenOut && !m_editorKeeper->openEditor())
        setState(NoState);
    QAbstractItemView::closeEditor(isTakenOut ? nullptr : editor, hint);
}

void WfMFieldTable::editorDestroyed(QObject* editor)
{
    if (const auto* const slider = qobject_cast<WfSlider*>(editor)) {
        const QLineEdit* const line = slider->m_lineEdit;
        if (line->hasFocus() || line->rect().contains(line->mapFromGlobal(QCursor::pos())))
            return;
    }
    QAbstractItemView::editorDestroyed(editor);
}
