// SPDX-License-Identifier: BSD-3-Clause
#include "FieldTextCommand.h"

#include "EditedField.h"
#include "KnField.h"

FieldTextCommand::FieldTextCommand(KnField& field)
    : m_node(field.getContainer())
    , m_field(field)
{
    field.get(m_oldText);
}

bool FieldTextCommand::write(const KbString& text) { return keepNewText(m_field.set(text)); }

bool FieldTextCommand::writeOwnDefault() { return keepNewText(m_field.resetToDefault()); }

bool FieldTextCommand::keepNewText(bool isTaken)
{
    if (!isTaken)
        return false;
    m_field.get(m_newText);
    announceEdit(m_field);
    return true;
}

void FieldTextCommand::undo()
{
    m_field.set(m_oldText);
    announceEdit(m_field);
}

void FieldTextCommand::redo()
{
    m_field.set(m_newText);
    announceEdit(m_field);
}
