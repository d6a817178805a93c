// SPDX-License-Identifier: BSD-3-Clause
#include "FieldEditDelegate.h"

#include "CrvStrings.h"
#include "FieldLineEdit.h"
#include "FieldListModel.h"
#include "KnSFBitMask.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QKeyEvent>

namespace {

const FieldListModel& modelOf(const QModelIndex& index)
{
    return *static_cast<const FieldListModel*>(index.model());
}

/// The names to choose from; empty for a field that isn't one of several named values.
QStringList choicesOf(KnField& field)
{
    auto* const choice = dynamic_cast<KnSFEnum*>(&field);
    if (!choice || field.isOfType(KnSFBitMask::getClassTypeId()))
        return {};
    int count = 0;
    int* values = nullptr;
    KbName* names = nullptr;
    choice->getEnums(count, values, names);
    QStringList choices;
    for (int i = 0; i < count; ++i)
        choices += toQString(names[i]);
    return choices;
}

} // namespace

QWidget* FieldEditDelegate::createEditor(
    QWidget* parent, const QStyleOptionViewItem&, const QModelIndex& index) const
{
    const QStringList choices = choicesOf(*modelOf(index).field(index));
    if (choices.isEmpty()) {
        m_editor = new FieldLineEdit(parent);
        return m_editor;
    }
    auto* const box = new QComboBox(parent);
    m_editor = box;
    box->setObjectName(QStringLiteral("fieldChoice"));
    box->addItems(choices);
    auto* const self = const_cast<FieldEditDelegate*>(this);
    connect(box, &QComboBox::activated, self, [self, box] {
        Q_EMIT self->commitData(box);
        Q_EMIT self->closeEditor(box);
    });
    QMetaObject::invokeMethod(box, &QComboBox::showPopup, Qt::QueuedConnection);
    return box;
}

void FieldEditDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    const QString text = index.data(Qt::EditRole).toString();
    if (auto* const box = qobject_cast<QComboBox*>(editor)) {
        if (!box->view()->isVisible())
            box->setCurrentIndex(box->findText(text));
        return;
    }
    // The field may change all the time; what was typed stays.
    auto* const line = qobject_cast<FieldLineEdit*>(editor);
    if (line->isModified() || (line->text() == text && !text.isEmpty()))
        return;
    line->setText(text);
    line->setPlaceholderText(text.isEmpty() ? index.data().toString() : QString());
    line->selectAll();
}

void FieldEditDelegate::setModelData(
    QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const
{
    if (auto* const box = qobject_cast<QComboBox*>(editor)) {
        if (box->currentIndex() >= 0 && box->currentText() != index.data(Qt::EditRole).toString())
            model->setData(index, box->currentText(), Qt::EditRole);
        return;
    }
    auto* const line = qobject_cast<FieldLineEdit*>(editor);
    if (!line->isModified())
        return;
    if (model->setData(index, line->text(), Qt::EditRole))
        line->setModified(false);
    else
        line->refuse(modelOf(index).refusal());
}

void FieldEditDelegate::updateEditorGeometry(
    QWidget* editor, const QStyleOptionViewItem& option, const QModelIndex&) const
{
    QRect place = option.rect;
    // A combo box needs more than the height of a row.
    const int missing = editor->minimumSizeHint().height() - place.height();
    if (qobject_cast<QComboBox*>(editor) && missing > 0)
        place.adjust(0, -missing / 2, 0, missing - missing / 2);
    editor->setGeometry(place);
}

void FieldEditDelegate::destroyEditor(QWidget* editor, const QModelIndex& index) const
{
    if (editor == m_editor)
        m_editor = nullptr; // it lives for a moment yet
    ValueDelegate::destroyEditor(editor, index);
}

QString FieldEditDelegate::finish()
{
    if (!m_editor)
        return QString();
    Q_EMIT commitData(m_editor);
    const FieldLineEdit* const line = refusedLine();
    const QString reason = line ? line->reason() : QString();
    if (m_editor)
        Q_EMIT closeEditor(m_editor);
    return reason;
}

FieldLineEdit* FieldEditDelegate::refusedLine() const
{
    auto* const line = qobject_cast<FieldLineEdit*>(m_editor);
    return line && line->isRefused() ? line : nullptr;
}

bool FieldEditDelegate::write(QWidget* editor)
{
    Q_EMIT commitData(editor);
    return !refusedLine();
}

bool FieldEditDelegate::eventFilter(QObject* watched, QEvent* event)
{
    auto* const line = qobject_cast<FieldLineEdit*>(watched);
    if (line && event->type() == QEvent::FocusOut) {
        // The line's own menu is no leaving.
        const bool isMenu = static_cast<QFocusEvent*>(event)->reason() == Qt::PopupFocusReason;
        return !isMenu && write(line) && ValueDelegate::eventFilter(watched, event);
    }
    if (event->type() != QEvent::KeyPress)
        return ValueDelegate::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    const bool isReturn = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (!isReturn && (!line || (key != Qt::Key_Tab && key != Qt::Key_Backtab)))
        return ValueDelegate::eventFilter(watched, event);
    // The base class lets the key go on to the list, where Return leads to the editor.
    auto* const editor = qobject_cast<QWidget*>(watched);
    if (write(editor)) {
        Q_EMIT closeEditor(editor,
            isReturn                 ? NoHint
                : key == Qt::Key_Tab ? EditNextItem
                                     : EditPreviousItem);
    }
    return true;
}
