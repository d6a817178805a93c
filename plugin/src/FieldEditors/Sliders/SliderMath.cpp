// SPDX-License-Identifier: BSD-3-Clause
#include "SliderMath.h"

#include "NumberLimits.h"

#include <cmath>
#include <limits>

namespace SliderMath {
namespace {

constexpr int doubleDigits = 15;
constexpr unsigned int unsignedOffset = 0x80000000U;

QLatin1String prefixOf(int base)
{
    return base == 16 ? QLatin1String("0x") : QLatin1String(base == 8 ? "0" : "");
}

// A power of two, so that scaling a range by it loses nothing.
constexpr double hugeRangeScale = 1.0 / 256.0;

// 1, unless a hundred times the range would overflow.
double scaleFor(double minimum, double maximum)
{
    return std::isfinite(realScaleTop * (maximum - minimum)) ? 1.0 : hugeRangeScale;
}

} // namespace

int detectBase(const QString& text)
{
    if (text.length() >= 3 && text.startsWith(prefixOf(16)))
        return 16;
    if (text.length() == 2 && text.startsWith(prefixOf(8)))
        return 8;
    return 10;
}

QString withoutPrefix(const QString& text, int base) { return text.mid(prefixOf(base).size()); }

QString withPrefix(const QString& digits, int base)
{
    const QLatin1String prefix = prefixOf(base);
    const bool typedAlong = base == 16 && digits.startsWith(prefix, Qt::CaseInsensitive);
    return prefix + (typedAlong ? digits.mid(prefix.size()) : digits);
}

int unsignedPosition(unsigned int value) { return static_cast<int>(value + unsignedOffset); }

unsigned int unsignedValue(int position)
{
    return static_cast<unsigned int>(position) + unsignedOffset;
}

int realPosition(double value, double minimum, double maximum)
{
    const double low = finite(minimum, false);
    const double high = finite(maximum, false);
    // Written so that "nan" in any of the three returns here.
    if (!(high > low) || !(value > low))
        return 0;
    if (value >= high)
        return realScaleTop;
    const double scale = scaleFor(low, high);
    const double ratio
        = realScaleTop * (value * scale - low * scale) / (high * scale - low * scale);
    return limited(static_cast<int>(ratio + 0.5), 0, realScaleTop);
}

double realValue(int position, double minimum, double maximum)
{
    const double low = finite(minimum, false);
    const double high = finite(maximum, false);
    if (!(high > low) || position <= 0)
        return low;
    if (position >= realScaleTop)
        return high;
    const double scale = scaleFor(low, high);
    const double scaled = low * scale + position * (high * scale - low * scale) / realScaleTop;
    return limited(scaled / scale, low, high);
}

double realLimit(bool isFloat) { return isFloat ? floatLimit : std::numeric_limits<double>::max(); }

double finite(double value, bool isFloat)
{
    return std::isinf(value) ? std::copysign(realLimit(isFloat), value) : value;
}

QString realText(double value, bool isFloat)
{
    QString text;
    if (isFloat)
        return text.setNum(value, 'f', floatDecimals);
    text.setNum(value, 'g', doubleDigits);
    bool reads = true;
    text.toDouble(&reads);
    // The largest numbers would round up to beyond the type: their last digit is rounded down.
    if (!reads && std::isfinite(value))
        text.setNum(value * (1.0 - 5e-15), 'g', doubleDigits);
    return text;
}

double realFromText(const QString& text, bool isFloat)
{
    bool reads = false;
    const double value = text.toDouble(&reads);
    // A number that is too large becomes the largest one; only the text "inf" is infinite.
    return reads ? value : finite(value, isFloat);
}

float toFloat(double value)
{
    return static_cast<float>(std::isinf(value) ? value : limited(value, -floatLimit, floatLimit));
}

} // namespace SliderMath
