// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvMFSetValueCommand.h"
#include "FieldEdit.h"

/// One undoable edit of an existing row of an array, which `write` writes.
template <class Write>
void executeRowEdit(KnMField* field, int row, Write&& write)
{
    KbString noOldValue;
    executeEdit(std::make_unique<CrvMFSetValueCommand>(field, row, noOldValue), field,
        std::forward<Write>(write));
}
