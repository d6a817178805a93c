// SPDX-License-Identifier: BSD-3-Clause
#include "WfMFColorTableItemDelegate.h"

#include "RowColor.h"
#include "WfMFieldWidget.h"

#include <QLineEdit>
#include <QPainter>

void WfMFColorTableItemDelegate::paint(
    QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    if (index.column() != 0) {
        WfMFieldTableItemDelegate::paint(painter, option, index);
        return;
    }
    const QColor color = rowColor(*m_widget, index.row()).color;
    if (!color.isValid())
        return;
    painter->save();
    painter->fillRect(option.rect, color);
    painter->restore();
}

QWidget* WfMFColorTableItemDelegate::createEditor(
    QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    return index.column() == 0 ? nullptr
                               : WfMFieldTableItemDelegate::createEditor(parent, option, index);
}

void WfMFColorTableItemDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    if (auto* const line = qobject_cast<QLineEdit*>(editor))
        line->setText(m_widget->getCellText(index.row(), index.column()));
    else
        WfMFieldTableItemDelegate::setEditorData(editor, index);
}

void WfMFColorTableItemDelegate::setModelData(
    QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const
{
    commit(editor, model, index, { index.column() - 1, Qt::EditRole, true });
}
