// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KbString.h"

#include <QByteArray>
#include <QLatin1String>
#include <QString>

#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

class CrvJsonValue;

/// A JSON text and where in it each value stands: a mark of 16 bytes for each, and no copies of
/// texts. It takes what QJsonDocument takes, in a fraction of the time.
class CrvJsonTree {
public:
    /// False for a text that isn't JSON, or whose outermost value isn't an object or an array. May
    /// throw std::bad_alloc.
    bool parse(QByteArray json);
    /// What was given to `parse`. There are no values any more then.
    QByteArray takeText() { return std::exchange(m_json, {}); }

    /// The outermost value, once `parse` has succeeded. Values are valid for as long as the tree.
    CrvJsonValue root() const;

private:
    friend class CrvJsonParser;
    friend class CrvJsonValue;

    enum class Kind : std::uint8_t { Object, Array, String, EscapedString, True, False, Other };

    struct Mark {
        std::uint32_t start; ///< in the text, behind the quote of a string
        std::uint32_t size; ///< of a text in bytes; the count of members or elements
        std::uint32_t next; ///< the mark behind this value and all that is in it
        Kind kind;
    };

    QByteArray m_json;
    std::vector<Mark> m_marks; // a member is its name and then its value
};

/// A value in a tree, which outlives it, or none, as of a member that an object doesn't have.
class CrvJsonValue {
public:
    CrvJsonValue() = default;

    bool isUndefined() const { return !m_tree; }
    bool isObject() const { return is(Kind::Object); }
    bool isArray() const { return is(Kind::Array); }
    bool isString() const { return is(Kind::String) || is(Kind::EscapedString); }
    bool isBool() const { return is(Kind::True) || is(Kind::False); }
    /// Whether it is this number.
    bool isNumber(double number) const;

    bool toBool() const { return is(Kind::True); }
    /// Empty unless it is a text.
    KbString toKbString() const;
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
    std::string_view bytes() const
    {
        return { m_tree->m_json.constData() + mark().start, mark().size };
    }
    std::u16string unescaped() const;

    const CrvJsonTree* m_tree = nullptr; // null for no value
    std::uint32_t m_index = 0; // of its mark
};
