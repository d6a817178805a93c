// SPDX-License-Identifier: BSD-3-Clause
#include "CellEditing.h"

#include "CellInput.h"
#include "KnMField.h"
#include "WfMFieldWidget.h"
#include "WfSlider.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QSignalBlocker>
#include <QTableWidget>

namespace {

bool isInside(const QWidget* editor, const QWidget* widget)
{
    return widget && (widget == editor || editor->isAncestorOf(widget));
}

} // namespace

CellEditing::CellEditing(WfMFieldWidget* widget, QTableWidget* table)
    : QObject(table)
    , m_widget(widget)
    , m_table(table)
{
    table->installEventFilter(this);
}

void CellEditing::begin(QWidget* editor, const QModelIndex& index)
{
    m_editor = editor;
    m_index = index;
    look();
    disconnect(m_focusChanges);
    m_focusChanges = connect(qApp, &QApplication::focusChanged, this, &CellEditing::focusMoved);
    if (qobject_cast<WfSlider*>(editor)) {
        for (QWidget* part : editor->findChildren<QWidget*>())
            part->installEventFilter(this);
    }
}

bool CellEditing::mayCommit(const QWidget* editor)
{
    // What this class ends is not the open editor any more; `end` has looked at its row.
    return editor && !editor->isHidden() && (editor != openEditor() || follow());
}

void CellEditing::takeOut(QWidget* editor, const QModelIndex& index)
{
    letGo(editor);
    takeFocusFrom(editor);
    m_table->removeCellWidget(index.row(), index.column());
    editor->hide();
    // It is deleted later, when the view may have another editor open, whose state must stay.
    disconnect(editor, &QObject::destroyed, m_table, nullptr);
}

/// Otherwise Qt would pass the focus on to the next widget, and perhaps make another cell current.
void CellEditing::takeFocusFrom(const QWidget* editor)
{
    if (isInside(editor, QApplication::focusWidget()))
        m_table->setFocus();
}

QWidget* CellEditing::openEditor() const
{
    // An editor that the table has given up is hidden until it is deleted.
    return m_editor && !m_editor->isHidden() ? m_editor.data() : nullptr;
}

void CellEditing::letGo(const QWidget* editor)
{
    if (editor != m_editor)
        return;
    // Closing moves the focus, and focusMoved would end the edit a second time.
    m_editor = nullptr;
    m_row.forget();
    disconnect(m_focusChanges);
}

void CellEditing::end(QAbstractItemDelegate::EndEditHint hint)
{
    if (!follow())
        return;
    QWidget* const editor = m_editor;
    letGo(editor);
    if (auto* const slider = qobject_cast<WfSlider*>(editor))
        finish(slider);
    QAbstractItemDelegate* const delegate = m_table->itemDelegate();
    Q_EMIT delegate->commitData(editor);
    Q_EMIT delegate->closeEditor(editor, hint);
}

void CellEditing::close()
{
    QWidget* const editor = openEditor();
    if (editor && isBusy(editor))
        end(QAbstractItemDelegate::NoHint);
    else
        drop();
}

void CellEditing::drop()
{
    QWidget* const editor = openEditor();
    if (!editor)
        return;
    letGo(editor);
    if (const auto* const slider = qobject_cast<WfSlider*>(editor))
        silence(slider);
    takeFocusFrom(editor);
    Q_EMIT m_table->itemDelegate()->closeEditor(editor, QAbstractItemDelegate::RevertModelCache);
}

void CellEditing::limitRows(int count)
{
    if (m_index.row() >= count)
        drop();
}

QString CellEditing::cellText() const
{
    return m_widget->getCellText(m_index.row(), m_index.column());
}

/// Remembers the text of the cell, and which row it is in.
void CellEditing::look()
{
    m_text = cellText();
    if (KnMField* const field = m_widget->shownField())
        m_row.look(*field, m_index.row());
}

void CellEditing::cellWritten()
{
    if (openEditor())
        look();
}

bool CellEditing::follow()
{
    QWidget* const editor = openEditor();
    const KnMField* const field = m_widget->shownField();
    if (!editor || !field)
        return false;
    const bool isSameValue = field->getNum() == m_row.count() && cellText() == m_text;
    if (!m_row.isInPlace(isSameValue || !isBusy(editor))) {
        drop();
        return false;
    }
    look();
    if (isSameValue || isBusy(editor))
        return true;
    QLineEdit* const line = lineOf(editor);
    const bool wasSelected = line && line->hasSelectedText();
    m_table->itemDelegate()->setEditorData(editor, m_index);
    // Selected as it was when it opened, so that typing replaces it.
    if (wasSelected)
        line->selectAll();
    return true;
}

bool CellEditing::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_table) {
        // Another field is being selected, or the panel leaves the screen.
        if (event->type() == QEvent::Hide)
            close();
        return false;
    }
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        if (static_cast<QKeyEvent*>(event)->key() != Qt::Key_Escape)
            return false;
        event->accept();
        return true;
    case QEvent::KeyPress:
        return filterKey(static_cast<QWidget*>(watched), *static_cast<QKeyEvent*>(event));
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
    case QEvent::Wheel:
        // A slider writes at once, so its row is checked first.
        return openEditor() && !follow();
    case QEvent::FocusOut: {
        // A line says that editing is finished even when another window comes to the front.
        // focusMoved decides whether it is.
        const QSignalBlocker blocker(watched);
        watched->event(event);
        return true;
    }
    default:
        return false;
    }
}

bool CellEditing::filterKey(const QWidget* part, const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Tab:
        end(QAbstractItemDelegate::EditNextItem);
        return true;
    case Qt::Key_Backtab:
        end(QAbstractItemDelegate::EditPreviousItem);
        return true;
    case Qt::Key_Escape:
        drop();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter: {
        const auto* const line = qobject_cast<const QLineEdit*>(part);
        if (line && !line->hasAcceptableInput())
            return false;
        if (!follow())
            return true;
        if (!line) {
            end(QAbstractItemDelegate::SubmitModelCache);
            return true;
        }
        // The line handles the key first: its signals write what was typed.
        QMetaObject::invokeMethod(
            this, [this, editor = m_editor] { endAfterReturn(editor); }, Qt::QueuedConnection);
        return false;
    }
    default:
        return openEditor() && !follow();
    }
}

void CellEditing::endAfterReturn(const QWidget* editor)
{
    if (!editor || editor != openEditor())
        return;
    // So that it isn't written once more.
    lineOf(m_editor)->setModified(false);
    end(QAbstractItemDelegate::SubmitModelCache);
}

void CellEditing::focusMoved(QWidget*, QWidget* now)
{
    const QWidget* const editor = openEditor();
    if (!editor || !now || now->window() != editor->window() || qobject_cast<const QMenuBar*>(now))
        return;
    if (!isInside(editor, now)) {
        end(QAbstractItemDelegate::NoHint);
        return;
    }
    auto* const slider = qobject_cast<WfSlider*>(m_editor);
    if (slider && slider->isModified() && now != slider->m_lineEdit && follow())
        writeTyped(slider);
}
