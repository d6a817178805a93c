// SPDX-License-Identifier: BSD-3-Clause
#include "Pixmaps.h"

namespace {
// Written by plugin/icons/make_icons.py.
#include "ButtonIcons.inc"
} // namespace

QPixmap defaultPixmap() { return QPixmap(defaultText); }
QPixmap ignorePixmap() { return QPixmap(ignoreText); }
QPixmap editPixmap() { return QPixmap(editText); }
QPixmap addPixmap() { return QPixmap(addText); }
QPixmap deletePixmap() { return QPixmap(deleteText); }
QPixmap upPixmap() { return QPixmap(upText); }
QPixmap downPixmap() { return QPixmap(downText); }
