// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvCommand.h"

class KnMField;

/// New rows of an array, which get the default value of its type.
class CrvMFAddRowsCommand : public CrvCommand {
public:
    /// `firstRow` is from 0 to the field's row count. The field is not owned.
    CrvMFAddRowsCommand(KnMField* field, int firstRow, int rowCount);

    void execute() override;
    void undo() override;
    void redo() override;

private:
    KnMField* m_field; // not owned
    int m_firstRow;
    int m_rowCount;
};
