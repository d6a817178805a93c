// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KbGeometry.h"
#include "KbVec.h"

#include <algorithm>
#include <array>
#include <concepts>
#include <cstddef>
#include <tuple>
#include <type_traits>
#include <utility>

/// Takes a value of several numbers apart and puts it together again: the numbers' type `Number`,
/// how many there are, `count`, the array `Numbers` of them, `read(value)` and `make(numbers)`.
/// `make(read(value))` is `value` to the bit. A new value type of several numbers needs a
/// specialisation of this, from which it gets its text form, too.
template <class Value>
struct KbComponents;

/// The constants of a specialisation for `N` numbers.
template <class NumberType, int N>
struct KbComponentArray {
    using Number = NumberType;
    static constexpr int count = N;
    using Numbers = std::array<Number, std::size_t(N)>;
};

/// A value that has components.
template <class Value>
concept KbCompound = requires
{
    typename KbComponents<Value>::Numbers;
};

/// Vectors and colours: their components in order.
template <class Value>
requires std::derived_from<Value, KbVec<typename Value::Component, Value::dimension>>
struct KbComponents<Value> {
    using Number = typename Value::Component;
    static constexpr int count = Value::dimension;
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

/// The normal, then the distance from the origin.
template <>
struct KbComponents<KbPlane> : KbComponentArray<float, 4> {
    static Numbers read(const KbPlane& plane)
    {
        const KbVec3f& n = plane.getNormal();
        return { n[0], n[1], n[2], plane.getDistanceFromOrigin() };
    }
    static KbPlane make(const Numbers& n) { return { KbVec3f(n[0], n[1], n[2]), n[3] }; }
};

/// The axis, then the angle in radians.
template <>
struct KbComponents<KbRotation> : KbComponentArray<float, 4> {
    static Numbers read(const KbRotation& rotation)
    {
        KbVec3f axis;
        float radians = 0;
        rotation.getValue(axis, radians);
        return { axis[0], axis[1], axis[2], radians };
    }
    static KbRotation make(const Numbers& n) { return { KbVec3f(n[0], n[1], n[2]), n[3] }; }
};

/// The elements, row after row.
template <>
struct KbComponents<KbMatrix> : KbComponentArray<float, 16> {
    static Numbers read(const KbMatrix& matrix)
    {
        Numbers numbers;
        std::copy_n(matrix.getValue(), count, numbers.begin());
        return numbers;
    }
    static KbMatrix make(const Numbers& numbers)
    {
        KbMatrix matrix;
        std::copy_n(numbers.begin(), count, matrix[0]);
        return matrix;
    }
};

/// Boxes: the components of the lowest corner, then those of the highest.
template <class Value>
requires requires(const Value& box) { box.getMin(); }
struct KbComponents<Value> {
    using Corner = std::remove_cvref_t<decltype(std::declval<const Value&>().getMin())>;
    using Number = typename Value::Component;
    static constexpr int count = 2 * Corner::dimension;
    using Numbers = std::array<Number, std::size_t(count)>;

    static Numbers read(const Value& box)
    {
        Numbers numbers;
        std::copy_n(box.getMin().getValue(), Corner::dimension, numbers.begin());
        std::copy_n(
            box.getMax().getValue(), Corner::dimension, numbers.begin() + Corner::dimension);
        return numbers;
    }
    static Value make(const Numbers& numbers)
    {
        return std::apply([](auto... number) { return Value(number...); }, numbers);
    }
};
