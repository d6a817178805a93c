// SPDX-License-Identifier: BSD-3-Clause
#include "WatchScale.h"

namespace {

constexpr double margin = 0.05; // of the range, on both sides

// A step of 1, 2 or 5 times a power of ten, at least that large.
double roundStep(double least)
{
    const double power = std::pow(10.0, std::floor(std::log10(least)));
    for (const double factor : { 1.0, 2.0, 5.0 }) {
        if (factor * power >= least)
            return factor * power;
    }
    return 10 * power;
}

QString tickLabel(double value, double step, double largest)
{
    constexpr double plainLimit = 1e6;
    constexpr double plainStep = 1e-4;
    const int stepPower = static_cast<int>(std::floor(std::log10(step) + 1e-9));
    if (largest < plainLimit && step >= plainStep)
        return QString::number(value, 'f', std::max(0, -stepPower));
    const int digits = static_cast<int>(std::floor(std::log10(largest))) - stepPower + 1;
    return QString::number(value, 'g', std::clamp(digits, 1, 15));
}

} // namespace

WatchScale::WatchScale(const WatchRange& range)
{
    if (range.isEmpty())
        return;
    constexpr double most = std::numeric_limits<double>::max();
    double add = (range.high / 2 - range.low / 2) * 2 * margin;
    // Also if the numbers lie so close that nothing fits between them.
    if (!(range.low - add < range.low && range.high + add > range.high))
        add = range.low == 0 ? 1 : std::abs(range.low) / 2;
    m_low = std::max(range.low - add, -most);
    m_high = std::min(range.high + add, most);
}

std::vector<WatchTick> roundTicks(double low, double high, int most)
{
    std::vector<WatchTick> ticks;
    const double least = (high / 2 - low / 2) / std::max(most, 1) * 2;
    if (!(least > 0) || !std::isfinite(least))
        return ticks;
    const double step = roundStep(least);
    const double largest = std::max(std::abs(low), std::abs(high));
    const double first = std::ceil(low / step);
    for (int i = 0; i <= most; ++i) {
        const double value = (first + i) * step;
        if (value > high)
            break;
        // The sum is no minus zero.
        ticks.push_back({ value, tickLabel(value + 0.0, step, largest) });
    }
    return ticks;
}
