// SPDX-License-Identifier: BSD-3-Clause
#include "CellDrawing.h"

#include "CellText.h"

#include <QCache>
#include <QFont>
#include <QPainter>
#include <QStaticText>

#include <algorithm>
#include <utility>

namespace {

// All that is kept, in code units: two screens full of numbers. What no longer shows would stay
// for good otherwise.
constexpr qsizetype mostUnits = 64 * 1024;
// A longer one isn't kept with the others: arrays of strings may hold whole files.
constexpr qsizetype longestUnits = 1024;
// What a text takes beside its own code units, as a count of them.
constexpr qsizetype unitsOfAny = 32;

/// Whether all of the text stands in one line, read from left to right.
bool isPlainLine(const QString& text)
{
    return !text.isRightToLeft() && std::all_of(text.cbegin(), text.cend(), [](QChar each) {
        return each.isPrint() && each != QChar::LineSeparator && each != QChar::ParagraphSeparator;
    });
}

using Place = std::pair<QString, int>; // the whole text and the width it may have, in pixels

struct Drawn {
    QString text; // cut
    QStaticText laidOut; // of the same text
    bool isLine = false; // whether `laidOut` looks as QPainter::drawText does
};

Drawn prepare(const QPainter& painter, const Place& place)
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

} // namespace

/// Those that were drawn last, all in one font.
class CellDrawing::Texts {
public:
    /// Holds until the next call.
    const Drawn& find(const QPainter& painter, const Place& place)
    {
        if (painter.font() != m_font) {
            m_font = painter.font();
            m_drawn.clear();
            m_longestPlace = {};
        }
        if (const Drawn* const known = m_drawn.object(place))
            return *known;
        const qsizetype units = place.first.size() + unitsOfAny;
        if (units > longestUnits) {
            if (m_longestPlace != place) {
                m_longest = prepare(painter, place);
                m_longestPlace = place;
            }
            return m_longest;
        }
        m_drawn.insert(place, new Drawn(prepare(painter, place)), units);
        return *m_drawn.object(place);
    }

private:
    QFont m_font;
    QCache<Place, Drawn> m_drawn { mostUnits };
    Drawn m_longest; // the last one that is too long to be kept with the others
    Place m_longestPlace;
};

CellDrawing::CellDrawing()
{
    static std::weak_ptr<Texts> ofAll;
    m_texts = ofAll.lock();
    if (!m_texts)
        ofAll = m_texts = std::make_shared<Texts>();
}

CellDrawing::~CellDrawing() = default;

void CellDrawing::draw(QPainter& painter, const QRect& cell, int padding, const QString& text)
{
    const Drawn& drawn = m_texts->find(painter, Place(text, cell.width() - padding));
    const QSizeF size = drawn.laidOut.size();
    // What sticks out has to be clipped.
    if (!drawn.isLine || size.width() > cell.width() || size.height() > cell.height()) {
        painter.drawText(cell, Qt::AlignCenter, drawn.text);
        return;
    }
    const QPointF shift((cell.width() - size.width()) / 2, (cell.height() - size.height()) / 2);
    painter.drawStaticText(cell.topLeft() + shift, drawn.laidOut);
}
