// SPDX-License-Identifier: BSD-3-Clause
#include "CellEditorKeeper.h"

#include "KnMField.h"
#include "WfMFieldTable.h"
#include "WfMFieldWidget.h"
#include "WfSlider.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QSignalBlocker>
#include <QSlider>

namespace {

bool isInside(const QWidget* editor, const QWidget* widget)
{
    return widget && (widget == editor || editor->isAncestorOf(widget));
}

/// Nothing that happens to the slider from now on reaches its owner.
void silence(const WfSlider* slider)
{
    for (QWidget* part : slider->findChildren<QWidget*>())
        part->blockSignals(true);
}

/// Has the slider tell its owner what was typed, if its line accepts it.
void takeTyped(WfSlider* slider)
{
    if (!slider->m_lineEdit->hasAcceptableInput())
        return;
    slider->changeValueFromEdit();
    slider->m_lineEdit->setModified(false);
}

bool isDragged(const WfSlider* slider)
{
    const auto* const scale = slider->findChild<QSlider*>();
    return scale && scale->isSliderDown();
}

/// What a person sees in the slider is written, and nothing after it.
void finish(WfSlider* slider)
{
    takeTyped(slider);
    // A drag that is cut short counts as released here.
    if (isDragged(slider))
        slider->findChild<QSlider*>()->setSliderDown(false);
    silence(slider);
}

QLineEdit* lineOf(QWidget* editor)
{
    const auto* const slider = qobject_cast<WfSlider*>(editor);
    return slider ? slider->m_lineEdit : qobject_cast<QLineEdit*>(editor);
}

bool isBusy(QWidget* editor)
{
    const auto* const slider = qobject_cast<WfSlider*>(editor);
    const QLineEdit* const line = lineOf(editor);
    return (slider && isDragged(slider)) || (line && line->isModified());
}

} // namespace

CellEditorKeeper::CellEditorKeeper(WfMFieldWidget* widget, WfMFieldTable* table)
    : QObject(table)
    , m_widget(widget)
    , m_table(table)
{
    table->installEventFilter(this);
}

void CellEditorKeeper::editorOpened(QWidget* editor, const QModelIndex& index)
{
    m_editor = editor;
    m_index = index;
    look();
    disconnect(m_focusChanges);
    m_focusChanges = connect(qApp, &QApplication::focusChanged, this,
        [this](QWidget*, QWidget* now) { focusMoved(now); });
    if (qobject_cast<WfSlider*>(editor)) {
        for (QWidget* part : editor->findChildren<QWidget*>())
            part->installEventFilter(this);
    }
}

void CellEditorKeeper::takeOut(QWidget* editor, const QModelIndex& index)
{
    letGo(editor);
    takeFocusFrom(editor);
    m_table->removeCellWidget(index.row(), index.column());
    editor->hide();
    // It is deleted later, when another editor may be open, whose state isn't to be touched.
    disconnect(editor, &QObject::destroyed, m_table, nullptr);
}

/// Else Qt would pass the focus on to whatever comes next, with a move to another cell maybe.
void CellEditorKeeper::takeFocusFrom(const QWidget* editor)
{
    if (isInside(editor, QApplication::focusWidget()))
        m_table->setFocus();
}

QWidget* CellEditorKeeper::openEditor() const
{
    // One that the table has given up is hidden until it is deleted.
    return m_editor && !m_editor->isHidden() ? m_editor.data() : nullptr;
}

void CellEditorKeeper::letGo(const QWidget* editor)
{
    if (editor != m_editor)
        return;
    // Closing moves the focus, which would ask for the end again.
    m_editor = nullptr;
    disconnect(m_focusChanges);
}

void CellEditorKeeper::end(QAbstractItemDelegate::EndEditHint hint)
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

void CellEditorKeeper::close()
{
    QWidget* const editor = openEditor();
    if (editor && isBusy(editor))
        end(QAbstractItemDelegate::NoHint);
    else
        drop();
}

void CellEditorKeeper::drop()
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

void CellEditorKeeper::limitRows(int count)
{
    if (m_index.row() >= count)
        drop();
}

QString CellEditorKeeper::cellText() const
{
    return m_widget->getCellText(m_index.row(), m_index.column());
}

/// Takes note of the cell and of the rows that tell where it is.
void CellEditorKeeper::look()
{
    m_text = cellText();
    if (const KnMField* const field = m_table->field())
        m_rows.look(*field);
}

void CellEditorKeeper::cellWritten()
{
    if (openEditor())
        look();
}

bool CellEditorKeeper::follow()
{
    QWidget* const editor = openEditor();
    const KnMField* const field = m_table->field();
    if (!editor || !field)
        return false;
    const bool isSameCount = field->getNum() == m_rows.count();
    const bool isSameValue = isSameCount && cellText() == m_text;
    const bool isPlaceInDoubt = !isSameCount || (!isSameValue && isBusy(editor));
    if (isPlaceInDoubt && !m_rows.isSamePlace(*field, m_index.row())) {
        drop();
        return false;
    }
    look();
    if (isSameValue || isBusy(editor))
        return true;
    QLineEdit* const line = lineOf(editor);
    const bool wasSelected = line && line->hasSelectedText();
    m_table->itemDelegate()->setEditorData(editor, m_index);
    // As when it was opened, so that typing replaces it.
    if (wasSelected)
        line->selectAll();
    return true;
}

bool CellEditorKeeper::eventFilter(QObject* watched, QEvent* event)
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
        // The slider writes by itself.
        return openEditor() && !follow();
    case QEvent::FocusOut: {
        // A line says that editing is finished whenever another window comes to the front; whether
        // it is, the new focus tells.
        const QSignalBlocker blocker(watched);
        watched->event(event);
        return true;
    }
    default:
        return false;
    }
}

bool CellEditorKeeper::filterKey(const QWidget* part, const QKeyEvent& event)
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
        // The line comes first: its signals write what was typed.
        QMetaObject::invokeMethod(
            this, [this, editor = m_editor] { endAfterReturn(editor); }, Qt::QueuedConnection);
        return false;
    }
    default:
        return openEditor() && !follow();
    }
}

void CellEditorKeeper::endAfterReturn(const QWidget* editor)
{
    if (!editor || editor != openEditor())
        return;
    // So that it isn't written once more.
    lineOf(m_editor)->setModified(false);
    end(QAbstractItemDelegate::SubmitModelCache);
}

void CellEditorKeeper::focusMoved(const QWidget* now)
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
        takeTyped(slider);
}
