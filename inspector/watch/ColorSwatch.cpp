// SPDX-License-Identifier: BSD-3-Clause
#include "ColorSwatch.h"

#include <QIconEngine>
#include <QPainter>

namespace {

class SwatchEngine : public QIconEngine {
public:
    SwatchEngine(const QColor& color, const QColor& frame)
        : m_color(color)
        , m_frame(frame)
    {
    }

    void paint(QPainter* painter, const QRect& place, QIcon::Mode, QIcon::State) override
    {
        painter->fillRect(place, m_color);
        if (!m_frame.isValid())
            return;
        painter->save();
        painter->setPen(m_frame);
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(place.adjusted(0, 0, -1, -1));
        painter->restore();
    }
    QIconEngine* clone() const override { return new SwatchEngine(*this); }

private:
    QColor m_color;
    QColor m_frame; // invalid for none
};

} // namespace

QIcon colorSwatch(const QColor& color, const QColor& frame)
{
    return QIcon(new SwatchEngine(color, frame)); // the icon owns it
}
