// SPDX-License-Identifier: BSD-3-Clause
#include "CrvFieldIgnoredCommand.h"

#include "KnField.h"

CrvFieldIgnoredCommand::CrvFieldIgnoredCommand(KnField* field, bool ignored)
    : m_field(field)
    , m_ignored(ignored)
{
}

void CrvFieldIgnoredCommand::execute() { m_field->setIgnored(m_ignored ? 1 : 0); }

void CrvFieldIgnoredCommand::undo() { m_field->setIgnored(m_ignored ? 0 : 1); }

void CrvFieldIgnoredCommand::redo() { execute(); }
