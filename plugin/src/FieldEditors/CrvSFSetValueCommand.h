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
    /// `oldValue` is the text from before the edit; it is made null when it is taken. If it is null
    /// or empty, the field's current text is read instead. The field is not owned.
    CrvSFSetValueCommand(KnField* field, KbString& oldValue);
};
