// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnMField.h"

/// One row of an array as the place of a value command.
struct FieldRow {
    KnMField* m_field; // not owned
    int m_rowIndex;

    void get(KbString& text) const { m_field->get1(m_rowIndex, text); }
    void set(const KbString& text) const { m_field->set1(m_rowIndex, text); }
};

/// Exchanges two rows of an array of any type by their texts. Both rows exist.
inline void swapRowTexts(KnMField* field, int row1, int row2)
{
    KbString a;
    KbString b;
    field->get1(row1, a);
    field->get1(row2, b);
    field->set1(row1, b);
    field->set1(row2, a);
}

/// Exchanges two rows of an array of a known type by their values. Both rows exist.
template <class Field>
void swapRowValues(Field& field, int row1, int row2)
{
    const typename Field::Value copy = field[row1];
    field.set1Value(row1, field[row2]);
    field.set1Value(row2, copy);
}
