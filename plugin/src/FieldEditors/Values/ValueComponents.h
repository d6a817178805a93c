// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KbComponents.h"

#include <QString>

// How editors name, write and read the numbers that KbComponents takes out of a value.

/// The names of a value's components, as headers and labels show them.
template <KbCompound Value>
requires(KbComponents<Value>::count <= 4) inline constexpr const char* componentNames[]
    = { "x", "y", "z", "w" };
template <>
inline constexpr const char* componentNames<KbPlane>[] = { "x", "y", "z", "distance" };
template <>
inline constexpr const char* componentNames<KbRotation>[] = { "x", "y", "z", "radians" };

/// Numbers as text: floats with six significant digits, integers in full.
inline QString componentText(float number) { return QString::number(double(number), 'g', 6); }
inline QString componentText(std::int16_t number) { return QString::number(number); }
inline QString componentText(std::int32_t number) { return QString::number(number); }

/// Text as a number; a text that isn't one counts as 0.
template <class Number>
Number componentNumber(const QString& text);
template <>
inline float componentNumber<float>(const QString& text)
{
    return text.toFloat();
}
template <>
inline std::int16_t componentNumber<std::int16_t>(const QString& text)
{
    return text.toShort(nullptr, 10);
}
template <>
inline std::int32_t componentNumber<std::int32_t>(const QString& text)
{
    return text.toInt(nullptr, 10);
}
