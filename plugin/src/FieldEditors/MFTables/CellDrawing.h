// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <memory>

class QPainter;
class QRect;
class QString;

/// Draws texts in the middle of cells, cut to the room that they have. What was drawn last is kept,
/// cut and laid out, for all tables together: most cells show again what they have just shown, or
/// what others show. It goes with the last table.
class CellDrawing {
public:
    CellDrawing();
    CellDrawing(const CellDrawing&) = delete;
    CellDrawing& operator=(const CellDrawing&) = delete;
    ~CellDrawing();

    /// In the painter's font and pen. `padding` pixels of the cell's width stay free.
    void draw(QPainter& painter, const QRect& cell, int padding, const QString& text);

private:
    class Texts;

    std::shared_ptr<Texts> m_texts;
};
