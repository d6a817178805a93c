// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnSField.h"
#include "KnTypeMacros.h"

#include <initializer_list>
#include <string_view>
#include <utility>
#include <vector>

/// One of several named values. The names belong to the field, so that each field of a node may
/// have its own; a field without names holds a plain number. As text it is the name, or the decimal
/// number of a value that has none; a name or a number reads back.
class KnSFEnum : public KnSField {
    KN_TYPE(KnSFEnum)
    using Value = int;

    int getValue() const { return m_value; }
    /// Any number is accepted, even one without a name.
    void setValue(int value);
    /// A name that the field doesn't have changes nothing and posts a KnReadError.
    void setValue(const KbName& name);

    /// The names in the order in which they were given, and the value of each. The arrays are the
    /// field's own and hold until the next `setEnums`.
    void getEnums(int& num, int*& values, KbName*& names);
    /// Copies `num` names with their values. The value of the field stays as it is. A name is
    /// neither empty nor a number and has no blanks at its ends; in a bit mask it is free of `|`
    /// and brackets.
    void setEnums(int num, const int* values, const KbName* names);
    void setEnums(std::initializer_list<std::pair<const char*, int>> enums);
    /// Gives the value of a name; false and no change for an unknown one.
    virtual bool findEnumValue(const KbName& name, int& value);

    using KnSField::set;
    void get(KbString& text) const override;
    bool set(const KbString& text) override;

protected:
    bool lookUp(std::string_view name, int& value) const;
    /// What a text may hold, for a message.
    std::string describeNames() const;

    std::vector<int> m_values;
    std::vector<KbName> m_names; // as many as values
    int m_value = 0;
};
