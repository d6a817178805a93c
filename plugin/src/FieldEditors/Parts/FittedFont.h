// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QFont>
#include <QSize>

class QLabel;
class QLineEdit;
class QSpinBox;

// The field widgets have fixed sizes in pixels, while the font is the user's. A text that would be
// clipped gets a smaller font, a text that fits keeps its own.

/// The largest font, not larger than `font`, in which `sample` fits into `room` with a pixel of air
/// above and below it.
QFont fittedFont(const QFont& font, const QString& sample, const QSize& room);

/// The line shows a number of six digits whole when it is given that size.
void fitNumberLine(QLineEdit* line, const QSize& size);
/// The same, for a line of that height. A line that is given less than it wants still shows five
/// digits, in a font that becomes smaller with it; so narrow it may become before it forces the
/// dock to be wider.
void fitNumberLine(QLineEdit* line, int height);
void fitSpinBox(QSpinBox* box, int height);
void fitLabel(QLabel* label, int height);
