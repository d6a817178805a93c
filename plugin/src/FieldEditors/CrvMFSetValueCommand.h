// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "FieldRow.h"
#include "ValueCommand.h"

/// A new value of one row of an array, of any type, held as text.
class CrvMFSetValueCommand : public ValueCommand<FieldRow> {
public:
    /// `oldValue` is the row's text from before the edit; it is made null when it is taken. If it
    /// is null or empty, the row's current text is read instead. The field is not owned.
    CrvMFSetValueCommand(KnMField* field, int row, KbString& oldValue);
};
