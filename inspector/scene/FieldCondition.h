// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "TextPattern.h"

#include <optional>

class KnField;

/// What a query asks of a field's value: `>0`, `=TRUE`.
class FieldCondition {
public:
    enum class Relation { Less, LessOrEqual, Greater, GreaterOrEqual, Equal, NotEqual };

    FieldCondition(Relation relation, const QString& value);

    /// False for an order that is asked of something that is no number.
    bool isSound() const { return m_sound; }
    /// Whether the number of the field fits, one of its components, or its text. Of a long array
    /// only the first values count, and an image doesn't, so the time doesn't grow with either.
    bool holds(const KnField& field) const;

private:
    bool holds(double number) const;
    bool holds(const std::string& text) const;

    Relation m_relation;
    std::optional<double> m_number; // nothing if the value isn't one
    TextPattern m_text;
    bool m_sound;
};
