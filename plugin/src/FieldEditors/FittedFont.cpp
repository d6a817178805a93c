// SPDX-License-Identifier: BSD-3-Clause
#include "FittedFont.h"

#include <QFontInfo>
#include <QFontMetrics>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QStyleOptionSpinBox>

namespace {

constexpr int anySize = QWIDGETSIZE_MAX;

bool fits(const QFont& font, const QString& sample, const QSize& room)
{
    const QFontMetrics metrics(font);
    return metrics.tightBoundingRect(sample).height() + 2 <= room.height()
        && metrics.horizontalAdvance(sample) <= room.width();
}

/// The longest text of six significant digits that isn't in exponent form.
QString numberSample() { return QStringLiteral("-0.123457"); }

/// What frame, margins and cursor of a line take of its width and height.
QSize surroundings(const QLineEdit* line)
{
    const QRect whole(0, 0, 1000, 1000);
    QStyleOptionFrame option;
    option.initFrom(line);
    option.rect = whole;
    option.lineWidth = line->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, line);
    const QRect contents
        = line->style()->subElementRect(QStyle::SE_LineEditContents, &option, line);
    const QMargins margins = line->textMargins();
    constexpr int lineMargin = 2; // what a line leaves free on the left and on the right
    constexpr int cursor = 1;
    return whole.size() - contents.size()
        + QSize(2 * lineMargin + cursor + margins.left() + margins.right(), 0);
}

} // namespace

QFont fittedFont(const QFont& font, const QString& sample, const QSize& room)
{
    constexpr int smallest = 7; // pixels; below, nobody reads it anyway
    QFont fitted = font;
    for (int size = QFontInfo(font).pixelSize(); !fits(fitted, sample, room) && size > smallest;)
        fitted.setPixelSize(--size);
    return fitted;
}

void fitNumberLine(QLineEdit* line, const QSize& size)
{
    const QSize around = surroundings(line);
    line->setFont(fittedFont(line->font(), numberSample(), size - around));
    if (size.width() == anySize) {
        line->setMinimumWidth(
            line->fontMetrics().horizontalAdvance(numberSample()) + around.width());
    }
}

void fitNumberLine(QLineEdit* line, int height) { fitNumberLine(line, QSize(anySize, height)); }

void fitSpinBox(QSpinBox* box, int height)
{
    QStyleOptionSpinBox option;
    option.initFrom(box);
    option.rect = QRect(0, 0, 1000, height);
    option.subControls = QStyle::SC_All;
    option.frame = box->hasFrame();
    const QRect field = box->style()->subControlRect(
        QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxEditField, box);
    box->setFont(
        fittedFont(box->font(), QStringLiteral("-0123456789"), QSize(anySize, field.height())));
}

void fitLabel(QLabel* label, int height)
{
    label->setFont(
        fittedFont(label->font(), QStringLiteral("distance xyzw"), QSize(anySize, height)));
}
