// SPDX-License-Identifier: BSD-3-Clause
#include "PopupPlacement.h"

#include <algorithm>

QPoint popupPosition(const QPoint& wanted, const QSize& screen, const QSize& room)
{
    QPoint position = wanted;
    if (position.x() > screen.width() - room.width())
        position.rx() -= room.width();
    if (position.y() > screen.height() - room.height())
        position.ry() -= room.height();
    return position;
}

QPoint popupPositionLeftOf(const QPoint& panelTopLeft, int popupWidth)
{
    return panelTopLeft - QPoint(popupWidth, 0);
}

QPoint positionInside(const QRect& area, const QPoint& wanted, const QSize& size)
{
    const QPoint last
        = area.topLeft() + QPoint(area.width() - size.width(), area.height() - size.height());
    return { std::max(std::min(wanted.x(), last.x()), area.left()),
        std::max(std::min(wanted.y(), last.y()), area.top()) };
}
