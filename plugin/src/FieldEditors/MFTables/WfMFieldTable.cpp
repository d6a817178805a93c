// SPDX-License-Identifier: BSD-3-Clause
#include "WfMFieldTable.h"

#include "AccessButtonPrivate.h"
#include "CellEditing.h"
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
#include <memory>
#include <utility>

namespace {

/// Hands a command over to the host, which runs it.
void execute(std::unique_ptr<CrvCommand> command)
{
    CrvServices::getInstance()->executeCommand(command.release());
}

} // namespace

WfMFieldTable::WfMFieldTable(WfMFieldWidget* widget, QWidget* parent, const char* name)
    : QTableWidget(parent)
    , m_widget(widget)
    , m_cellEditing(new CellEditing(widget, this))
{
    const QLatin1String objectName(name);
    setObjectName(objectName.isEmpty() ? QStringLiteral("WfMFieldTable") : QString(objectName));
    m_delegate = new WfMFieldTableItemDelegate(widget, *m_cellEditing, this);
    setItemDelegate(m_delegate);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setCurrentCell(0, 0);
    connect(model(), &QAbstractItemModel::dataChanged, this, &WfMFieldTable::noteItem);
    new ColumnFit(this); // child
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
    // If the new limits cut the number, nobody has asked to jump to the new one.
    const QSignalBlocker blocker(box);
    box->setRange(minimum, maximum);
}

void WfMFieldTable::setNumRows(int row)
{
    if (row < 0)
        return;
    setAccessLimits(row != 0 ? 1 : 0, row);
    m_cellEditing->follow();
    if (row != rowCount()) {
        m_cellEditing->limitRows(row);
        setRowCount(row);
        layOutRows();
    }
}

void WfMFieldTable::update() { viewport()->update(); }

/// The view by itself does this a turn later, when all has been painted, and paints it again then.
void WfMFieldTable::layOutRows()
{
    if (isVisible())
        executeDelayedItemsLayout();
}

void WfMFieldTable::showTableRow(int value)
{
    const int row = value - 1;
    if (row < 0 || row >= rowCount())
        return;
    scrollTo(model()->index(row, 0), QAbstractItemView::EnsureVisible);
    setCurrentCell(row, 0);
}

/// Brings table and field in line before rows are changed: what is being typed is written to the
/// row that it was typed for, and the field's count may have changed since the last refresh.
/// False without a field that is shown and may be written.
bool WfMFieldTable::prepareRowOperation()
{
    if (!m_widget->mayWrite(field()))
        return false;
    m_cellEditing->close();
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
    KnMField* const shown = field();
    if (m_widget->mayWrite(shown))
        execute(std::make_unique<CrvMFSwapRowsCommand>(shown, row1, row2));
}

/// Leaves what clearContents leaves: no item, and neither a selection nor a current cell. That one
/// looks at each row and has the view lay itself out anew, which people wait for in long arrays.
void WfMFieldTable::dropItems()
{
    selectionModel()->reset();
    for (const QPersistentModelIndex& cell : std::exchange(m_items, {})) {
        if (cell.isValid())
            delete takeItem(cell.row(), cell.column()); // ours, once it is out
    }
}

void WfMFieldTable::noteItem(const QModelIndex& cell)
{
    if (item(cell.row(), cell.column()) && !m_items.contains(cell))
        m_items.append(cell);
}

void WfMFieldTable::addRow()
{
    if (!prepareRowOperation())
        return;
    const int current = currentRow();
    const int newRow = current + 1;
    dropItems();
    insertRow(newRow);
    for (int column = 0; column < columnCount(); ++column)
        setItem(newRow, column, new QTableWidgetItem);
    setAccessLimits(1, m_widget->m_accessBox->maximum() + 1);
    execute(std::make_unique<CrvMFAddRowsCommand>(field(), newRow, 1));
    if (newRow < 1) {
        setCurrentCell(newRow, 0);
        Q_EMIT currentCellChanged(newRow, 0, 0, 0);
    } else {
        setCurrentCell(current, 0);
        Q_EMIT currentCellChanged(current, 0, newRow, 0);
    }
    layOutRows();
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
    // When the last row goes, the box has nothing left to point at.
    AccessButtonPrivate* const box = m_widget->m_accessBox;
    const int maximum = box->maximum() - count;
    setAccessLimits(qMin(box->minimum(), maximum), maximum);
    execute(std::make_unique<CrvMFDeleteRowsCommand>(field(), firstRow, count));
    model()->removeRows(firstRow, count, QModelIndex());
    layOutRows();
}

/// False while a cell is being edited: the parts of its editor pass on the keys that they have no
/// use for, and those are not meant for the rows.
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
    // The release of Shift will go to whatever has the focus next.
    if (m_multiSelect)
        endMultiSelect();
    QTableWidget::focusOutEvent(event);
}

void WfMFieldTable::endMultiSelect()
{
    setSelectionMode(QAbstractItemView::NoSelection);
    m_multiSelect = false;
}

void WfMFieldTable::dropCellEdit() { m_cellEditing->drop(); }

void WfMFieldTable::cellWritten() { m_cellEditing->cellWritten(); }

bool WfMFieldTable::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event)
{
    const bool isEdited = m_widget->mayWrite(field()) && QTableWidget::edit(index, trigger, event);
    QWidget* const editor = isEdited ? indexWidget(index) : nullptr;
    if (editor && editor != m_cellEditing->openEditor())
        m_cellEditing->begin(editor, index);
    return isEdited;
}

void WfMFieldTable::commitData(QWidget* editor)
{
    if (m_cellEditing->mayCommit(editor))
        QTableWidget::commitData(editor);
}

void WfMFieldTable::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint)
{
    m_cellEditing->letGo(editor);
    const bool isTakenOut = editor && editor->isHidden();
    if (isTakenOut && !m_cellEditing->openEditor())
        setState(NoState);
    // The view doesn't know an editor any more that was taken out, but the hint is still to be
    // followed: a move to the next cell, for example.
    QTableWidget::closeEditor(isTakenOut ? nullptr : editor, hint);
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
