// SPDX-License-Identifier: BSD-3-Clause
#include "CrvMFAddRowsCommand.h"

#include "KnMField.h"

CrvMFAddRowsCommand::CrvMFAddRowsCommand(KnMField* field, int firstRow, int rowCount)
    : m_field(field)
    , m_firstRow(firstRow)
    , m_rowCount(rowCount)
{
}

void CrvMFAddRowsCommand::execute()
{
    // The default value of every type, in the kernel's text form.
    const KbString defaultText("\"\"");
    m_field->insertValues(m_firstRow, m_rowCount);
    for (int i = 0; i < m_rowCount; ++i)
        m_field->set1(m_firstRow + i, defaultText);
    m_field->valueChanged(0, m_field->getNum(), 1);
}

void CrvMFAddRowsCommand::undo() { m_field->removeValues(m_firstRow, m_rowCount); }

void CrvMFAddRowsCommand::redo() { execute(); }
