// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnSField.h"

#include <concepts>
#include <utility>

/// What all single-value field classes share: the value, and its text by the text form of the value
/// type. A field class adds its type and nothing else; see KnSFields.h.
template <class FieldValue>
class KnSFieldOf : public KnSField {
public:
    using Value = FieldValue;

    const Value& getValue() const { return m_value; }
    void setValue(const Value& value)
    {
        aboutToWrite();
        m_value = value;
        touch();
    }
    /// Sets a value made from its components.
    template <class... Components>
    requires(sizeof...(Components) > 1
        && std::constructible_from<Value, Components...>) void setValue(Components&&... components)
    {
        setValue(Value(std::forward<Components>(components)...));
    }

    using KnSField::set;
    void get(KbString& text) const override;
    bool set(const KbString& text) override;

private:
    Value m_value {};
};
