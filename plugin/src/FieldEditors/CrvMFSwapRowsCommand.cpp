// SPDX-License-Identifier: BSD-3-Clause
#include "CrvMFSwapRowsCommand.h"

#include "FieldRow.h"

CrvMFSwapRowsCommand::CrvMFSwapRowsCommand(KnMField* field, int row1, int row2)
    : m_field(field)
    , m_row1(row1)
    , m_row2(row2)
{
}

void CrvMFSwapRowsCommand::execute() { swapRowTexts(m_field, m_row1, m_row2); }

void CrvMFSwapRowsCommand::undo() { execute(); }

void CrvMFSwapRowsCommand::redo() { execute(); }
