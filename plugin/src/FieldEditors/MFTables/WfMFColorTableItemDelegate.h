// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "WfMFieldTableItemDelegate.h"

/// Paints the first column of a table of colours with the colour of each row. It is no cell to type
/// in. In the other columns, which stand one ahead of the components, it is the plain delegate,
/// except that it also writes what is committed without a change.
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
