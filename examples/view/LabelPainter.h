// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "DrawList.h"

#include <QFont>
#include <QPointF>
#include <QRectF>

#include <vector>

class QPainter;
class QPalette;
class SceneRenderer;

/// Writes the labels of a scene over its picture: upright and as large as they say, whatever the
/// distance, on grounds that keep them readable before anything.
class LabelPainter {
public:
    /// Finds where the labels stand in what the renderer has drawn. `scale` is how many of its
    /// pixels are one of the painter's. The list has to last until the next call.
    void layOut(const DrawList& list, const SceneRenderer& renderer, qreal scale);
    /// Those whose place is outlined get a frame in the palette's highlight colour.
    void paint(
        QPainter& painter, const QPalette& palette, const std::vector<bool>& isOutlined) const;
    /// The place of the foremost label at a point of the painter; -1 if there is none.
    int placeAt(const QPointF& point) const;

private:
    struct Line {
        QString text;
        QPointF baseline; // where it starts
        qreal stretch; // of its natural width
    };
    struct Box {
        const DrawList::Label* label;
        QFont font;
        std::vector<Line> lines;
        QRectF ground;
        float nearness;
    };

    static Box boxOf(const DrawList::Label& label, const QPointF& at);

    std::vector<Box> m_boxes; // the foremost last
};
