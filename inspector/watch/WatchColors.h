// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QColor>

class QPalette;

/// The colours of the curves, from 0 to `watchColorCount - 1`; there is one set for light and one
/// for dark backgrounds. Chosen so that each stands out from the background (a contrast of 3 and
/// more) and from every other one, also for people who see two of the three primaries.
inline constexpr int watchColorCount = 7;
QColor watchColor(int number, const QPalette& palette);
