// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QPixmap>

/// The icons that the buttons of the field widgets carry: 16 by 16 pixels, mid greys on a
/// transparent ground, so that they are legible on a light and on a dark palette. Each call makes a
/// pixmap from XPM text; a widget keeps its own.
QPixmap defaultPixmap();
QPixmap ignorePixmap();
QPixmap editPixmap();
QPixmap addPixmap();
QPixmap deletePixmap();
QPixmap upPixmap();
QPixmap downPixmap();
