// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QFont>
#include <QHash>
#include <QStaticText>
#include <QString>

#include <utility>

class QPainter;
class QRect;

/// Draws texts in the middle of cells, cut to the room that they have. What was drawn is kept, cut
/// and laid out: most cells show again what they have just shown, or what others show.
class CellDrawing {
public:
    /// In the painter's font and pen. `padding` pixels of the cell's width stay free.
    void draw(QPainter& painter, const QRect& cell, int padding, const QString& text);

private:
    using Place = std::pair<QString, int>; // the whole text and the width it may have, in pixels
    struct Drawn {
        QString text; // cut
        QStaticText laidOut; // of the same text
        bool isLine = false; // whether `laidOut` looks as QPainter::drawText does
    };

    static Drawn prepare(const QPainter& painter, const Place& place);

    QFont m_font; // of all that is kept
    QHash<Place, Drawn> m_drawn;
    Drawn m_longest; // the last one that is too long to be kept with the others
    Place m_longestPlace;
};
