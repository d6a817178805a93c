// SPDX-License-Identifier: BSD-3-Clause
#include "ValueDelegate.h"

#include "ColorSwatch.h"
#include "FieldListModel.h"

#include <QPainter>

namespace {

// How much of the brightest light lies over the row; with more, text would be hard to read on it.
constexpr double brightest = 0.45;
// The same for a row in which two nodes differ.
constexpr double differing = 0.2;
// Above and below the text together, in pixels: room for a check mark and for a line.
constexpr int rowMargin = 4;

// Away from the text, which stays readable.
QColor litSelection(const QPalette& palette, double light)
{
    const QColor plain = palette.color(QPalette::Highlight);
    const bool darker = palette.color(QPalette::HighlightedText).lightnessF() > 0.5;
    const int percent = 100 + static_cast<int>(80 * light);
    return darker ? plain.darker(percent) : plain.lighter(percent);
}

// The frame sets off a color that is the row's own.
QIcon framedSwatch(const QColor& color, const QPalette& palette)
{
    QColor frame = palette.color(QPalette::Text);
    frame.setAlphaF(0.5F);
    return colorSwatch(color, frame);
}

/// A closed lock in the middle of `place`, drawn in the colour of the text.
void drawLock(QPainter& painter, const QRectF& place, const QColor& color)
{
    const double unit = place.height() / 10;
    const QPointF middle = place.center();
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, 1.2 * unit));
    const QRectF shackle(middle.x() - 2 * unit, middle.y() - 4.5 * unit, 4 * unit, 5 * unit);
    painter.drawArc(shackle, 0, 180 * 16);
    for (const double x : { shackle.left(), shackle.right() })
        painter.drawLine(QPointF(x, shackle.center().y()), QPointF(x, middle.y()));
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(
        QRectF(middle.x() - 3.2 * unit, middle.y() - 0.5 * unit, 6.4 * unit, 5 * unit), unit, unit);
    painter.restore();
}

} // namespace

// A locked value ends where its lock begins.
void ValueDelegate::paint(
    QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    if (!index.data(FieldListModel::ReadOnlyRole).toBool()) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    QStyleOptionViewItem value(option);
    QStyleOptionViewItem lock(option);
    initStyleOption(&lock, index);
    value.rect.setRight(value.rect.right() - option.fontMetrics.height());
    lock.rect.setLeft(value.rect.right() + 1);
    QStyledItemDelegate::paint(painter, value, index);
    option.widget->style()->drawPrimitive(
        QStyle::PE_PanelItemViewItem, &lock, painter, option.widget);
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    QColor color = lock.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text);
    color.setAlphaF(0.7F);
    const double height = option.fontMetrics.ascent();
    drawLock(*painter,
        QRectF(lock.rect.left(), lock.rect.center().y() - height / 2, lock.rect.width(), height),
        color);
}

// As high whatever stands in the row, since the first row stands for all of them.
QSize ValueDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    return { QStyledItemDelegate::sizeHint(option, index).width(),
        option.fontMetrics.height() + rowMargin };
}

void ValueDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    const auto own = index.data(Qt::DecorationRole).value<QColor>();
    if (own.isValid()) {
        option->icon = framedSwatch(own, option->palette);
        option->decorationSize
            = { option->fontMetrics.height() * 3 / 2, option->fontMetrics.ascent() };
    }
    if (index.data(FieldListModel::LinkRole).toBool())
        option->palette.setBrush(QPalette::Text, option->palette.link());
    if (index.data(FieldListModel::DiffersRole).toBool()) {
        option->text = QStringLiteral("%1 %2").arg(QChar(0x2260)).arg(option->text);
        QColor mark = option->palette.color(QPalette::Highlight);
        mark.setAlphaF(static_cast<float>(differing));
        option->backgroundBrush = mark;
    }
    const double light = index.data(FieldListModel::LightRole).toDouble();
    if (light <= 0)
        return;
    QColor color = option->palette.color(QPalette::Highlight);
    color.setAlphaF(static_cast<float>(brightest * light));
    option->backgroundBrush = color;
    option->palette.setColor(QPalette::Highlight, litSelection(option->palette, light));
}
