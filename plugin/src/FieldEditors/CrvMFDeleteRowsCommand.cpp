// SPDX-License-Identifier: BSD-3-Clause
#include "CrvMFDeleteRowsCommand.h"

#include "KnMField.h"

CrvMFDeleteRowsCommand::CrvMFDeleteRowsCommand(KnMField* field, int firstRow, int rowCount)
    : m_field(field)
    , m_rowValues(std::make_unique<KbString[]>(static_cast<std::size_t>(rowCount)))
    , m_firstRow(firstRow)
    , m_rowCount(rowCount)
{
    for (int i = 0; i < m_rowCount; ++i)
        m_field->get1(m_firstRow + i, m_rowValues[static_cast<std::size_t>(i)]);
}

void CrvMFDeleteRowsCommand::execute() { m_field->removeValues(m_firstRow, m_rowCount); }

void CrvMFDeleteRowsCommand::undo()
{
    m_field->insertValues(m_firstRow, m_rowCount);
    for (int i = 0; i < m_rowCount; ++i)
        m_field->set1(m_firstRow + i, m_rowValues[static_cast<std::size_t>(i)]);
}

void CrvMFDeleteRowsCommand::redo() { execute(); }
