// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvFieldEditors.h"
#include "CrvSFSetValueCommand.h"
#include "CrvServices.h"

#include <memory>
#include <utility>

/// One undoable edit of a whole field: makes the command while the field still holds the old value,
/// runs `write`, which writes the field, and hands the command to the host. `oldValue` is the old
/// text if the caller has saved it, or null; see CrvSFSetValueCommand. Nothing happens to a field
/// that `editor` doesn't show, or that is read-only.
template <class Write>
void executeFieldEdit(
    const CrvFieldEditors& editor, KnField* field, KbString& oldValue, Write&& write)
{
    if (!editor.mayWrite(field))
        return;
    auto command = std::make_unique<CrvSFSetValueCommand>(field, oldValue);
    std::forward<Write>(write)();
    CrvServices::getInstance()->executeCommand(command.release());
}

template <class Write>
void executeFieldEdit(const CrvFieldEditors& editor, KnField* field, Write&& write)
{
    KbString noOldValue;
    executeFieldEdit(editor, field, noOldValue, std::forward<Write>(write));
}
