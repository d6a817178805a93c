// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KbGeometry.h"
#include "KbVec.h"

#include <QString>

#include <algorithm>
#include <array>

// How a compound value of the kernel splits into the numbers that an editor shows, and how these
// numbers are written and read. Everything that shows components uses these traits.

/// Numbers as text: floats with six significant digits, integers in full.
inline QString componentText(float number) { return QString::number(double(number), 'g', 6); }
inline QString componentText(std::int16_t number) { return QString::number(number); }
inline QString componentText(std::int32_t number) { return QString::number(number); }

/// Text as a number; a text that is none counts as 0.
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

/// Each specialisation gives `Number`, `count`, `read(value)`, which gives the components in the
/// order in which they are shown, and `make(numbers)`, the value made of them. Those of the
/// values that are shown in columns also give the columns' `names`.
template <class Value>
struct ValueComponents;

template <class Value>
concept KernelVector = requires
{
    Value::dimension;
};

template <KernelVector Value>
struct ValueComponents<Value> {
    using Number = typename Value::Component;
    static constexpr int count = Value::dimension;
    static constexpr const char* names[] = { "x", "y", "z", "w" };
    using Numbers = std::array<Number, std::size_t(count)>;

    static Numbers read(const Value& value)
    {
        Numbers numbers;
        std::copy_n(value.getValue(), count, numbers.begin());
        return numbers;
    }
    static Value make(const Numbers& numbers)
    {
        Value value;
        for (int i = 0; i < count; ++i)
            value[i] = numbers[std::size_t(i)];
        return value;
    }
};

template <>
struct ValueComponents<KbPlane> {
    using Number = float;
    static constexpr int count = 4;
    static constexpr const char* names[] = { "x", "y", "z", "distance" };
    using Numbers = std::array<float, 4>;

    static Numbers read(const KbPlane& plane)
    {
        const KbVec3f& n = plane.getNormal();
        return { n[0], n[1], n[2], plane.getDistanceFromOrigin() };
    }
    static KbPlane make(const Numbers& n) { return { KbVec3f(n[0], n[1], n[2]), n[3] }; }
};

template <>
struct ValueComponents<KbRotation> {
    using Number = float;
    static constexpr int count = 4;
    static constexpr const char* names[] = { "x", "y", "z", "radians" };
    using Numbers = std::array<float, 4>;

    static Numbers read(const KbRotation& rotation)
    {
        KbVec3f axis;
        float radians = 0;
        rotation.getValue(axis, radians);
        return { axis[0], axis[1], axis[2], radians };
    }
    static KbRotation make(const Numbers& n) { return { KbVec3f(n[0], n[1], n[2]), n[3] }; }
};

template <class Value>
concept KernelBox = requires(const Value& box)
{
    box.getMin();
};

/// The components of the lowest corner, then those of the highest.
template <KernelBox Value>
struct ValueComponents<Value> {
    using Number = typename Value::Component;
    static constexpr int perCorner
        = std::remove_cvref_t<decltype(std::declval<Value>().getMin())>::dimension;
    static constexpr int count = 2 * perCorner;
    using Numbers = std::array<Number, std::size_t(count)>;

    static Numbers read(const Value& box)
    {
        Numbers numbers;
        std::copy_n(box.getMin().getValue(), perCorner, numbers.begin());
        std::copy_n(box.getMax().getValue(), perCorner, numbers.begin() + perCorner);
        return numbers;
    }
    static Value make(const Numbers& numbers)
    {
        return std::apply([](auto... number) { return Value(number...); }, numbers);
    }
};

/// The elements, row after row.
template <>
struct ValueComponents<KbMatrix> {
    using Number = float;
    static constexpr int count = 16;
    using Numbers = std::array<float, 16>;

    static Numbers read(const KbMatrix& matrix)
    {
        Numbers numbers;
        std::copy_n(matrix.getValue(), count, numbers.begin());
        return numbers;
    }
    static KbMatrix make(const Numbers& numbers)
    {
        KbMatrix matrix;
        std::copy(numbers.begin(), numbers.end(), matrix[0]);
        return matrix;
    }
};
