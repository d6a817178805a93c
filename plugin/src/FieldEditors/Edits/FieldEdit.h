// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvFieldEditors.h"
#include "CrvSFSetValueCommand.h"
#include "CrvServices.h"
#include "KnNodePtr.h"

#include <memory>
#include <utility>

/// One undoable edit: runs `write`, which writes the field, and hands the command to the host. The
/// command was made while the field still held the old value. A setter that the write calls may run
/// an event loop, in which everybody else lets go of the field's node.
template <class Write>
void executeEdit(std::unique_ptr<CrvCommand> command, KnField* field, Write&& write)
{
    const KnNodePtr node = KnNodePtr::ofHeld(field->getContainer());
    std::forward<Write>(write)();
    CrvServices::getInstance()->executeCommand(command.release(), *field);
}

/// One undoable edit of a whole field. `oldValue` is the old text if the caller has saved it, or
/// null; see CrvSFSetValueCommand. Nothing happens to a field that `editor` doesn't show, or that
/// is read-only.
template <class Write>
void executeFieldEdit(
    const CrvFieldEditors& editor, KnField* field, KbString& oldValue, Write&& write)
{
    if (editor.mayWrite(field))
        executeEdit(std::make_unique<CrvSFSetValueCommand>(field, oldValue), field,
            std::forward<Write>(write));
}

template <class Write>
void executeFieldEdit(const CrvFieldEditors& editor, KnField* field, Write&& write)
{
    KbString noOldValue;
    executeFieldEdit(editor, field, noOldValue, std::forward<Write>(write));
}
