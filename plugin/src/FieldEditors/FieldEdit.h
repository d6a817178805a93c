// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvSFSetValueCommand.h"
#include "CrvServices.h"

#include <utility>

/// One undoable edit of a whole field: makes the command while the field still holds the old value,
/// runs `write`, which writes the field, and hands the command to the host. `oldValue` is the old
/// text, where the caller saved it before; it is used up. A null one stands for the field's text.
template <class Write>
void executeFieldEdit(KnField* field, KbString& oldValue, Write&& write)
{
    auto* const command = new CrvSFSetValueCommand(field, oldValue);
    std::forward<Write>(write)();
    CrvServices::getInstance()->executeCommand(command);
}

template <class Write>
void executeFieldEdit(KnField* field, Write&& write)
{
    KbString noOldValue;
    executeFieldEdit(field, noOldValue, std::forward<Write>(write));
}
