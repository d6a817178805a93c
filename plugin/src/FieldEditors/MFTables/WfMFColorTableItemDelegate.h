// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "WfMFieldTableItemDelegate.h"

/// Paints the first column of a table of colours with the colour of each row; nobody can type
/// there. The other columns, which are numbered one ahead of the components, work as in the plain
/// delegate, except that a cell which is committed unchanged is written as well.
class WfMFColorTableItemDelegate : public WfMFieldTableItemDelegate {
public:
    using WfMFieldTableItemDelegate::WfMFieldTableItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
        const QModelIndex& index) const override;
    /// Null for the first column.
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
        const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(
        QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
};
