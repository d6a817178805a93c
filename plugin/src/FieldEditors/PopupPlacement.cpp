// SPDX-License-Identifier: BSD-3-Clause
#include "PopupPlacement.h"

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
