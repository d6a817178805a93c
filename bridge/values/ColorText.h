// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QColor>

#include <optional>

/// A colour as one word that reads back to the bit: `#ff8000` or `#80ff8000` with the alpha first
/// for 8 bits for each component, `rgb:1:0.5:0:1` for more, and the same for the other models:
/// `hsv:`, `hsl:`, `cmyk:`. An invalid one is `invalid`. One beyond the range of a model can't be
/// read back.
QString colorText(const QColor& color);
/// The colour of such a word, or of a name; none for any other text.
std::optional<QColor> colorOf(const QString& text);
