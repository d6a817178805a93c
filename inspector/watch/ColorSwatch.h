// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QColor>
#include <QIcon>

/// A color to stand in front of a row's text, also of a selected one, with a line around it if
/// `frame` is valid. It is drawn anew each time: an icon with a pixmap would leave one in
/// QPixmapCache for each painting, and that cache is the whole process's.
QIcon colorSwatch(const QColor& color, const QColor& frame = QColor());
