// SPDX-License-Identifier: BSD-3-Clause
#include "CellDrawing.h"

#include "CellText.h"

#include <QPainter>

#include <algorithm>

namespace {

// Several screens full. What no longer shows would stay for good otherwise.
constexpr qsizetype mostTexts = 1024;
// Nothing longer is kept, in code units, but for one: arrays of strings may hold whole files.
constexpr qsizetype longestText = 1024;

/// Whether all of the text stands in one line, read from left to right.
bool isPlainLine(const QString& text)
{
    return !text.isRightToLeft() && std::all_of(text.cbegin(), text.cend(), [](QChar each) {
        return each.isPrint() && each != QChar::LineSeparator && each != QChar::ParagraphSeparator;
    });
}

} // namespace

CellDrawing::Drawn CellDrawing::prepare(const QPainter& painter, const Place& place)
{
    const QFontMetrics metrics = painter.fontMetrics();
    Drawn drawn;
    drawn.text = cellText(place.first, place.second,
        [&metrics](const QString& part) { return metrics.horizontalAdvance(part); });
    drawn.isLine = painter.layoutDirection() != Qt::RightToLeft && isPlainLine(drawn.text);
    if (drawn.isLine) {
        drawn.laidOut.setTextFormat(Qt::PlainText);
        drawn.laidOut.setText(drawn.text);
        drawn.laidOut.prepare(painter.transform(), painter.font());
    }
    return drawn;
}

void CellDrawing::draw(QPainter& painter, const QRect& cell, int padding, const QString& text)
{
    if (painter.font() != m_font || m_drawn.size() >= mostTexts) {
        m_font = painter.font();
        m_drawn.clear();
        m_longest = {};
        m_longestPlace = {};
    }
    const Place place(text, cell.width() - padding);
    const Drawn* drawn = nullptr;
    if (text.size() > longestText) {
        if (m_longestPlace != place) {
            m_longest = prepare(painter, place);
            m_longestPlace = place;
        }
        drawn = &m_longest;
    } else {
        auto found = m_drawn.constFind(place);
        if (found == m_drawn.constEnd())
            found = m_drawn.insert(place, prepare(painter, place));
        drawn = &*found;
    }
    const QSizeF size = drawn->laidOut.size();
    // What sticks out has to be clipped.
    if (!drawn->isLine || size.width() > cell.width() || size.height() > cell.height()) {
        painter.drawText(cell, Qt::AlignCenter, drawn->text);
        return;
    }
    const QPointF shift((cell.width() - size.width()) / 2, (cell.height() - size.height()) / 2);
    painter.drawStaticText(cell.topLeft() + shift, drawn->laidOut);
}
