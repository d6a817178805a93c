// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KbComponents.h"
#include "KbName.h"
#include "KbTime.h"
#include "KnTextReader.h"
#include "KnTextWriter.h"

#include <cstdint>
#include <type_traits>

/// The text form of a value type: `write` appends a value, `read` takes one or notes a failure with
/// the reader and gives false. A new value type needs a specialisation of this, or of KbComponents
/// if it consists of numbers.
template <class Value>
struct KnTextForm;

/// The numbers of a compound value, with blanks between them.
template <KbCompound Value>
struct KnTextForm<Value> {
    static void write(KnTextWriter& writer, const Value& value)
    {
        bool first = true;
        for (const auto number : KbComponents<Value>::read(value)) {
            if (!first)
                writer.put(' ');
            first = false;
            writer.number(number);
        }
    }
    static bool read(KnTextReader& reader, Value& value)
    {
        using Components = KbComponents<Value>;
        typename Components::Numbers numbers;
        for (int i = 0; i < Components::count; ++i) {
            if (!reader.read(numbers[static_cast<std::size_t>(i)]))
                return reader.failComponent(i, Components::count);
        }
        value = Components::make(numbers);
        return true;
    }
};

/// Plain numbers.
template <class Value>
requires std::is_arithmetic_v<Value>
struct KnTextForm<Value> {
    static void write(KnTextWriter& writer, Value value) { writer.number(value); }
    static bool read(KnTextReader& reader, Value& value) { return reader.read(value); }
};

/// In hexadecimal, since these hold masks and packed colours.
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
