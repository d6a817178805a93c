// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvMFSetValueCommand.h"
#include "CrvServices.h"

#include <memory>
#include <utility>

/// One undoable edit of an existing row of an array: makes the command while the row still holds
/// the old value, runs `write`, which writes the row, and hands the command to the host.
template <class Write>
void executeRowEdit(KnMField* field, int row, Write&& write)
{
    KbString noOldValue;
    auto command = std::make_unique<CrvMFSetValueCommand>(field, row, noOldValue);
    std::forward<Write>(write)();
    CrvServices::getInstance()->executeCommand(command.release());
}
