// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnField.h"
#include "ValueCommand.h"

/// A whole field as the place of a value command.
struct WholeField {
    KnField* m_field; // not owned

    void get(KbString& text) const { m_field->get(text); }
    void set(const KbString& text) const { m_field->set(text); }
};

/// A new value of a field, of any type, held as text.
class CrvSFSetValueCommand : public ValueCommand<WholeField> {
public:
    /// `oldValue` is the text from before the edit, which is used up: it is made null. A null or
    /// empty one stands for the field's present text. The field is not owned.
    CrvSFSetValueCommand(KnField* field, KbString& oldValue);
};
