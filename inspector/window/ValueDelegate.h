// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QStyledItemDelegate>

/// Paints the values of the field list. A value that has just changed is lit by the color of
/// selections, which fades; a color has a swatch, what differs in a comparison is marked, what is
/// read-only has a lock, and what leads to another node looks like a link.
class ValueDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
        const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};
