// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvCommand.h"
#include "KbString.h"

#include <memory>

class KnMField;

/// The removal of rows from an array. It keeps the text of each removed row.
class CrvMFDeleteRowsCommand : public CrvCommand {
public:
    /// Reads the texts now; all of the rows exist. The field is not owned.
    CrvMFDeleteRowsCommand(KnMField* field, int firstRow, int rowCount);

    void execute() override;
    /// Puts every row back in its old place.
    void undo() override;
    void redo() override;

private:
    KnMField* m_field; // not owned
    std::unique_ptr<KbString[]> m_rowValues; // m_rowCount texts, in the order of the rows
    int m_firstRow;
    int m_rowCount;
};
