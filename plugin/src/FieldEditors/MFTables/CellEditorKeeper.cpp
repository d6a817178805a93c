// SPDX-License-Identifier: BSD-3-Clause
#include "CellEditorKeeper.h"

#include "WfMFieldTable.h"
#include "WfMFieldWidget.h"
#include "WfSlider.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSlider>

namespace {

bool hasFocusInside(const QWidget* editor)
{
    const QWidget* const focus = QApplication::focusWidget();
    return focus && (focus == editor || editor->isAncestorOf(focus));
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
    m_text = cellText();
    if (qobject_cast<WfSlider*>(editor)) {
        for (QWidget* part : editor->findChildren<QWidget*>())
            part->installEventFilter(this);
    }
}

void CellEditorKeeper::takeOut(QWidget* editor, const QModelIndex& index)
{
    // Else Qt would pass the focus on to whatever comes next in the window.
    if (hasFocusInside(editor))
        m_table->setFocus();
    m_table->removeCellWidget(index.row(), index.column());
    editor->hide();
    // It is deleted later, when another editor may be open, whose state isn't to be touched.
    disconnect(editor, &QObject::destroyed, m_table, nullptr);
}

QWidget* CellEditorKeeper::openEditor() const
{
    // One that the table has given up is hidden until it is deleted.
    return m_editor && !m_editor->isHidden() ? m_editor.data() : nullptr;
}

QString CellEditorKeeper::cellText() const
{
    return m_widget->getCellText(m_index.row(), m_index.column());
}

void CellEditorKeeper::end(QAbstractItemDelegate::EndEditHint hint)
{
    QWidget* const editor = openEditor();
    if (!editor)
        return;
    // Closing moves the focus, which asks for the end again.
    m_editor = nullptr;
    if (auto* const slider = qobject_cast<WfSlider*>(editor))
        finish(slider);
    QAbstractItemDelegate* const delegate = m_table->itemDelegate();
    Q_EMIT delegate->commitData(editor);
    Q_EMIT delegate->closeEditor(editor, hint);
}

void CellEditorKeeper::drop()
{
    QWidget* const editor = openEditor();
    if (!editor)
        return;
    m_editor = nullptr;
    if (const auto* const slider = qobject_cast<WfSlider*>(editor))
        silence(slider);
    Q_EMIT m_table->itemDelegate()->closeEditor(editor, QAbstractItemDelegate::RevertModelCache);
}

void CellEditorKeeper::limitRows(int count)
{
    if (m_index.row() >= count)
        drop();
}

void CellEditorKeeper::fieldChanged(bool countChanged)
{
    QWidget* const editor = openEditor();
    if (!editor)
        return;
    const QString text = cellText();
    if (text == m_text)
        return;
    m_text = text;
    if (countChanged) {
        drop();
        return;
    }
    if (isBusy(editor))
        return;
    QLineEdit* const line = lineOf(editor);
    const bool wasSelected = line && line->hasSelectedText();
    m_table->itemDelegate()->setEditorData(editor, m_index);
    // As when it was opened, so that typing replaces it.
    if (wasSelected)
        line->selectAll();
}

bool CellEditorKeeper::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_table) {
        // Another field is being selected, or the panel leaves the screen.
        if (event->type() == QEvent::Hide)
            commit();
        return false;
    }
    auto* const part = static_cast<QWidget*>(watched);
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        if (static_cast<QKeyEvent*>(event)->key() != Qt::Key_Escape)
            return false;
        event->accept();
        return true;
    case QEvent::KeyPress:
        return filterKey(part, *static_cast<QKeyEvent*>(event));
    case QEvent::FocusOut:
        if (auto* const slider = qobject_cast<WfSlider*>(part->parentWidget()))
            focusLeft(slider);
        return false;
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
        // The line comes first: Return is its own signal.
        QMetaObject::invokeMethod(
            this, [this] { end(QAbstractItemDelegate::SubmitModelCache); }, Qt::QueuedConnection);
        return line == nullptr;
    }
    default:
        return false;
    }
}

void CellEditorKeeper::focusLeft(WfSlider* slider)
{
    if (!hasFocusInside(slider))
        commit();
    else if (slider->isModified())
        takeTyped(slider);
}
