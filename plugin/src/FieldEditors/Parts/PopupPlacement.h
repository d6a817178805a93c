// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

// Where the popups of the field editors open, as plain arithmetic in global pixels.

/// The top left corner of a popup that is to open at `wanted` and needs `room` to the right of it
/// and below it. In each direction in which that doesn't fit into `screen`, which starts at (0, 0),
/// the popup moves by the whole room to the other side of the point.
QPoint popupPosition(const QPoint& wanted, const QSize& screen, const QSize& room);

/// The top left corner of a popup that opens to the left of a panel, at the height of its top.
QPoint popupPositionLeftOf(const QPoint& panelTopLeft, int popupWidth);

/// `wanted`, moved no further than needed for a popup of that size to lie inside `area`. A popup
/// larger than the area keeps its top left corner inside.
QPoint positionInside(const QRect& area, const QPoint& wanted, const QSize& size);
