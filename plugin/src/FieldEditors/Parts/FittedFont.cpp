// SPDX-License-Identifier: BSD-3-Clause
#include "FittedFont.h"

#include <QEvent>
#include <QFontInfo>
#include <QFontMetrics>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QStyleOptionSpinBox>

#include <algorithm>

namespace {

constexpr int anySize = QWIDGETSIZE_MAX;
constexpr int smallestFont = 7; // pixels; nobody can read anything smaller
constexpr int narrowFont = 8; // pixels; of a line at its minimum width

bool fits(const QFont& font, const QString& sample, const QSize& room)
{
    const QFontMetrics metrics(font);
    return metrics.tightBoundingRect(sample).height() + 2 <= room.height()
        && metrics.horizontalAdvance(sample) <= room.width();
}

/// The longest text of six significant digits that isn't in exponent form.
QString numberSample() { return QStringLiteral("-0.123457"); }

QString fiveDigits() { return QStringLiteral("00000"); }

/// How much of a line's width and height its frame, margins and cursor take.
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

/// Keeps five digits of a line visible while its width changes. The line is the parent.
class NarrowLine : public QObject {
public:
    explicit NarrowLine(QLineEdit* line)
        : QObject(line)
        , m_line(line)
        , m_font(line->font())
    {
        QFont narrow = m_font;
        narrow.setPixelSize(std::min(narrowFont, QFontInfo(m_font).pixelSize()));
        line->setMinimumWidth(
            QFontMetrics(narrow).horizontalAdvance(fiveDigits()) + surroundings(line).width());
        line->installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Resize) {
            const int width = m_line->width() - surroundings(m_line).width();
            const QFont font = fittedFont(m_font, fiveDigits(), QSize(width, anySize));
            if (font != m_line->font())
                m_line->setFont(font);
        }
        return false;
    }

private:
    QLineEdit* m_line;
    QFont m_font; // of a line with enough room
};

} // namespace

QFont fittedFont(const QFont& font, const QString& sample, const QSize& room)
{
    QFont fitted = font;
    for (int size = QFontInfo(font).pixelSize();
         !fits(fitted, sample, room) && size > smallestFont;)
        fitted.setPixelSize(--size);
    return fitted;
}

void fitNumberLine(QLineEdit* line, const QSize& size)
{
    line->setFont(fittedFont(line->font(), numberSample(), size - surroundings(line)));
}

void fitNumberLine(QLineEdit* line, int height)
{
    fitNumberLine(line, QSize(anySize, height));
    new NarrowLine(line);
}

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
