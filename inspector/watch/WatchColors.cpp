// SPDX-License-Identifier: BSD-3-Clause
#include "WatchColors.h"

#include <QPalette>

#include <array>

namespace {

struct Pair {
    QRgb onLight;
    QRgb onDark;
};

constexpr std::array<Pair, watchColorCount> colors { {
    { 0xFF0B4BEE, 0xFF91C5FF },
    { 0xFFAE7C00, 0xFFFFB40C },
    { 0xFF009960, 0xFF06FFA8 },
    { 0xFF81105C, 0xFFEC639E },
    { 0xFF553C00, 0xFFABA44E },
    { 0xFF8B64BF, 0xFF7975E2 },
    { 0xFF101010, 0xFFE5F7FD },
} };

} // namespace

QColor watchColor(int number, const QPalette& palette)
{
    const Pair& pair = colors[static_cast<std::size_t>(number)];
    const bool dark = palette.color(QPalette::Base).lightness() < 128;
    return QColor::fromRgb(dark ? pair.onDark : pair.onLight);
}
