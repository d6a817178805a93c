// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "FieldRow.h"
#include "ValueCommand.h"

/// A new value of one row of an array, of any type, held as text.
class CrvMFSetValueCommand : public ValueCommand<FieldRow> {
public:
    /// `oldValue` is the row's text from before the edit, which is used up: it is made null. A null
    /// or empty one stands for the row's present text. The field is not owned.
    CrvMFSetValueCommand(KnMField* field, int row, KbString& oldValue);
};
