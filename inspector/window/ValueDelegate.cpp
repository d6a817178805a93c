// SPDX-License-Identifier: BSD-3-Clause
#include "ValueDelegate.h"

#include "FieldListModel.h"

namespace {

// How much of the brightest light lies over the row; with more, text would be hard to read on it.
constexpr double brightest = 0.45;

// Away from the text, which stays readable.
QColor litSelection(const QPalette& palette, double light)
{
    const QColor plain = palette.color(QPalette::Highlight);
    const bool darker = palette.color(QPalette::HighlightedText).lightnessF() > 0.5;
    const int percent = 100 + static_cast<int>(80 * light);
    return darker ? plain.darker(percent) : plain.lighter(percent);
}

} // namespace

void ValueDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    const double light = index.data(FieldListModel::LightRole).toDouble();
    if (light <= 0)
        return;
    QColor color = option->palette.color(QPalette::Highlight);
    color.setAlphaF(static_cast<float>(brightest * light));
    option->backgroundBrush = color;
    option->palette.setColor(QPalette::Highlight, litSelection(option->palette, light));
}
