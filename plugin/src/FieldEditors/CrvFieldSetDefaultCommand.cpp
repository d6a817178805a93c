// SPDX-License-Identifier: BSD-3-Clause
#include "CrvFieldSetDefaultCommand.h"

#include "KnField.h"

CrvFieldSetDefaultCommand::CrvFieldSetDefaultCommand(KnField* field, KnField* defaultField)
    : m_field(field)
{
    field->get(m_oldValue);
    defaultField->get(m_defaultValue);
}

void CrvFieldSetDefaultCommand::execute() { m_field->set(m_defaultValue); }

void CrvFieldSetDefaultCommand::undo() { m_field->set(m_oldValue); }

void CrvFieldSetDefaultCommand::redo() { execute(); }
