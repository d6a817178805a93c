// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KbGeometry.h"
#include "KbName.h"
#include "KbTime.h"
#include "KnTextReader.h"
#include "KnTextWriter.h"

#include <algorithm>

/// The text form of a value type: `write` appends a value, `read` takes one or notes a failure with
/// the reader and gives false. A new value type needs a specialisation of this, or of KnComponents
/// if it consists of numbers.
template <class Value>
struct KnTextForm;

/// What a value of several numbers is made of, in the order of its text.
template <class Value>
struct KnComponents;

template <class Value>
requires std::derived_from<Value, KbVec<typename Value::Component, Value::dimension>>
struct KnComponents<Value> {
    using Array = std::array<typename Value::Component, Value::dimension>;
    static Array get(const Value& value)
    {
        Array array;
        std::copy_n(value.getValue(), array.size(), array.begin());
        return array;
    }
    static Value make(const Array& array)
    {
        Value value;
        for (int i = 0; i < Value::dimension; ++i)
            value[i] = array[static_cast<std::size_t>(i)];
        return value;
    }
};

template <>
struct KnComponents<KbPlane> {
    using Array = std::array<float, 4>;
    static Array get(const KbPlane& plane)
    {
        const KbVec3f& n = plane.getNormal();
        return { n[0], n[1], n[2], plane.getDistanceFromOrigin() };
    }
    static KbPlane make(const Array& a) { return { KbVec3f(a[0], a[1], a[2]), a[3] }; }
};

template <>
struct KnComponents<KbRotation> {
    using Array = std::array<float, 4>;
    static Array get(const KbRotation& rotation)
    {
        KbVec3f axis;
        float radians = 0;
        rotation.getValue(axis, radians);
        return { axis[0], axis[1], axis[2], radians };
    }
    static KbRotation make(const Array& a) { return { KbVec3f(a[0], a[1], a[2]), a[3] }; }
};

template <>
struct KnComponents<KbMatrix> {
    using Array = std::array<float, 16>;
    static Array get(const KbMatrix& matrix)
    {
        Array array;
        std::copy_n(matrix.getValue(), array.size(), array.begin());
        return array;
    }
    static KbMatrix make(const Array& array)
    {
        KbMatrix matrix;
        std::copy_n(array.begin(), array.size(), matrix[0]);
        return matrix;
    }
};

template <class Value>
requires requires(const Value& box) { box.getMin(); }
struct KnComponents<Value> {
    using Corner = std::remove_cvref_t<decltype(std::declval<const Value&>().getMin())>;
    static constexpr int dimension = Corner::dimension;
    using Array = std::array<typename Value::Component, 2 * dimension>;
    static Array get(const Value& box)
    {
        Array array;
        std::copy_n(box.getMin().getValue(), dimension, array.begin());
        std::copy_n(box.getMax().getValue(), dimension, array.begin() + dimension);
        return array;
    }
    static Value make(const Array& array)
    {
        Corner min;
        Corner max;
        auto next = array.begin();
        for (Corner* corner : { &min, &max }) {
            for (int i = 0; i < dimension; ++i)
                (*corner)[i] = *next++;
        }
        return { min, max };
    }
};

template <class Value>
requires requires { typename KnComponents<Value>::Array; }
struct KnTextForm<Value> {
    static void write(KnTextWriter& writer, const Value& value)
    {
        bool first = true;
        for (const auto number : KnComponents<Value>::get(value)) {
            if (!first)
                writer.put(' ');
            first = false;
            writer.number(number);
        }
    }
    static bool read(KnTextReader& reader, Value& value)
    {
        typename KnComponents<Value>::Array array;
        for (std::size_t i = 0; i < array.size(); ++i) {
            if (!reader.read(array[i]))
                return reader.failComponent(static_cast<int>(i), static_cast<int>(array.size()));
        }
        value = KnComponents<Value>::make(array);
        return true;
    }
};

/// Numbers that are read and written as such.
template <class Value>
requires std::is_arithmetic_v<Value>
struct KnTextForm<Value> {
    static void write(KnTextWriter& writer, Value value) { writer.number(value); }
    static bool read(KnTextReader& reader, Value& value) { return reader.read(value); }
};

/// These hold masks and packed colours.
template <>
struct KnTextForm<std::uint32_t> {
    static void write(KnTextWriter& writer, std::uint32_t value) { writer.hexadecimal(value); }
    static bool read(KnTextReader& reader, std::uint32_t& value) { return reader.read(value); }
};

template <>
struct KnTextForm<bool> {
    static void write(KnTextWriter& writer, bool value) { writer.put(value ? "TRUE" : "FALSE"); }
    static bool read(KnTextReader& reader, bool& value);
};

template <>
struct KnTextForm<KbTime> {
    static void write(KnTextWriter& writer, KbTime value) { writer.number(value.getValue()); }
    static bool read(KnTextReader& reader, KbTime& value);
};

template <>
struct KnTextForm<KbString> {
    static void write(KnTextWriter& writer, const KbString& value)
    {
        writer.putQuoted(value.toUtf8());
    }
    static bool read(KnTextReader& reader, KbString& value);
};

template <>
struct KnTextForm<KbName> {
    static void write(KnTextWriter& writer, const KbName& value)
    {
        writer.putQuoted(value.getString().toUtf8());
    }
    static bool read(KnTextReader& reader, KbName& value);
};
