// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QFont>
#include <QSize>

class QLabel;
class QLineEdit;
class QSpinBox;

// The field widgets have fixed sizes in pixels, but the font is the user's choice. A text that
// would be clipped gets a smaller font; a text that fits keeps its own.

/// `font`, made smaller if needed, so that `sample` fits into `room` with a free pixel above and
/// below.
QFont fittedFont(const QFont& font, const QString& sample, const QSize& room);

/// Fits the font so that a line of that size shows a number of six digits in full.
void fitNumberLine(QLineEdit* line, const QSize& size);
/// The same for a line of that height. When the line gets less width than it wants, its font
/// shrinks so that five digits still show.
void fitNumberLine(QLineEdit* line, int height);
void fitSpinBox(QSpinBox* box, int height);
void fitLabel(QLabel* label, int height);
