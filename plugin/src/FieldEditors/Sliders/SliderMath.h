// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

/// The arithmetic of the sliders, without widgets: number bases, texts, and the conversion between
/// values and positions of a QSlider.
namespace SliderMath {

/// The scale of a real always has the positions 0 to 100, percent of the current range.
inline constexpr int realScaleTop = 100;

/// The number base of an integer text: 16 for a text of three or more characters that starts with
/// "0x", 8 for one of exactly two that starts with "0", otherwise 10.
int detectBase(const QString& text);
/// `text` without its first characters, as many as the prefix of the base has, whatever they are.
QString withoutPrefix(const QString& text, int base);
/// `digits` with the prefix of the base in front. A hexadecimal prefix that a person has typed
/// isn't doubled.
QString withPrefix(const QString& digits, int base);

/// Unsigned values keep their order on the signed scale: 0 lies at the lowest `int`, 4294967295 at
/// the highest.
int unsignedPosition(unsigned int value);
unsigned int unsignedValue(int position);

/// The position of a value in a range, from 0 to realScaleTop. A value outside the range gets the
/// nearer end. In a range that is empty or upside down everything is at 0, and "nan" is at 0
/// anywhere.
int realPosition(double value, double minimum, double maximum);
/// The value of a position, always inside the range. Infinite limits count as the largest numbers.
double realValue(int position, double minimum, double maximum);

/// The largest finite number of the type.
double realLimit(bool isFloat);
/// Infinity as the largest finite number of its sign; any other number unchanged.
double finite(double value, bool isFloat);
/// A float is shown with 6 decimals, a double with 15 significant digits. A finite number never
/// gets a text that reads back as infinite.
QString realText(double value, bool isFloat);
/// The number that a text stands for; 0.0 if it isn't one.
double realFromText(const QString& text, bool isFloat);
/// Narrows to a float. A finite number stays finite.
float toFloat(double value);

/// `value` clamped to a range, to the maximum first. "nan" stays.
template <class Value>
Value limited(Value value, Value minimum, Value maximum)
{
    const Value cut = value > maximum ? maximum : value;
    return cut < minimum ? minimum : cut;
}

} // namespace SliderMath
