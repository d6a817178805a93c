// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "FieldRow.h"
#include "ValueCommand.h"

/// A new value of one row of an array, for editors that never hold an old text of their own, such
/// as those of colours.
class CrvMFSetFieldValueCommand : public ValueCommand<FieldRow> {
public:
    /// Reads the row's present text as the old one. The field is not owned.
    CrvMFSetFieldValueCommand(KnMField* field, int row);
};
