// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KbString.h"

#include <QByteArray>
#include <QLatin1String>
#include <QString>

#include <cstdint>
#include <string_view>
#include <vector>

class CrvJsonValue;
struct QJsonParseError;

/// The values of a JSON text: its strings behind each other, and a mark of 16 bytes for each value.
/// RapidJSON finds them in a fraction of the time that QJsonDocument takes.
class CrvJsonTree {
public:
    /// Takes what QJsonDocument takes, and gives its error for anything else. The text isn't needed
    /// any more afterwards. May throw std::bad_alloc.
    bool parse(const QByteArray& json, QJsonParseError* error);

    /// The outermost value, once `parse` has succeeded. Values are valid for as long as the tree.
    CrvJsonValue root() const;

private:
    friend class CrvJsonValue;
    class Builder;

    enum class Kind : std::uint8_t { Object, Array, String, Number, True, False, Null };

    struct Mark {
        std::uint32_t start; ///< of a string, in the strings; which of the numbers it is
        std::uint32_t size; ///< of a string, in bytes; the count of members or elements
        std::uint32_t next; ///< the mark behind this value and all that is in it
        Kind kind;
    };

    bool parseFast(const QByteArray& json);
    bool parseWithQt(const QByteArray& json, QJsonParseError* error);

    std::vector<Mark> m_marks; // a member is its name and then its value
    QByteArray m_strings; // in UTF-8 as KbString's, so that surrogates alone survive
    std::vector<double> m_numbers;
};

/// A value in a tree, which outlives it, or none, as of a member that an object doesn't have.
class CrvJsonValue {
public:
    CrvJsonValue() = default;

    bool isUndefined() const { return !m_tree; }
    bool isObject() const { return is(Kind::Object); }
    bool isArray() const { return is(Kind::Array); }
    bool isString() const { return is(Kind::String); }
    bool isBool() const { return is(Kind::True) || is(Kind::False); }
    /// Whether it is this number.
    bool isNumber(double number) const
    {
        return is(Kind::Number) && m_tree->m_numbers[mark().start] == number;
    }

    bool toBool() const { return is(Kind::True); }
    /// Empty unless it is a text.
    KbString toKbString() const { return KbString(string()); }
    QString toQString() const;
    /// Whether it is this text, which is ASCII.
    bool equals(QLatin1String text) const;

    /// Of members or elements; 0 for other values.
    int count() const { return isObject() || isArray() ? static_cast<int>(mark().size) : 0; }
    /// A member of an object; the last of several that have the name.
    CrvJsonValue member(QLatin1String name) const;

    /// Runs through the elements of an array, or through the members of an object, whose names come
    /// by `name`. There are none in other values.
    class Iterator {
    public:
        CrvJsonValue name() const { return { m_tree, m_index }; }
        CrvJsonValue value() const { return { m_tree, m_index + (m_named ? 1 : 0) }; }
        CrvJsonValue operator*() const { return value(); }
        Iterator& operator++();
        bool operator!=(const Iterator& other) const { return m_index != other.m_index; }

    private:
        friend class CrvJsonValue;
        const CrvJsonTree* m_tree = nullptr;
        std::uint32_t m_index = 0;
        bool m_named = false;
    };
    Iterator begin() const;
    Iterator end() const;

private:
    friend class CrvJsonTree;
    using Kind = CrvJsonTree::Kind;

    CrvJsonValue(const CrvJsonTree* tree, std::uint32_t index)
        : m_tree(tree)
        , m_index(index)
    {
    }

    const CrvJsonTree::Mark& mark() const { return m_tree->m_marks[m_index]; }
    bool is(Kind kind) const { return m_tree && mark().kind == kind; }
    std::string_view string() const
    {
        return isString()
            ? std::string_view(m_tree->m_strings.constData() + mark().start, mark().size)
            : std::string_view();
    }

    const CrvJsonTree* m_tree = nullptr; // null for no value
    std::uint32_t m_index = 0; // of its mark
};
