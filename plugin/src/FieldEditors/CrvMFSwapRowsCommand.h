// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvCommand.h"

class KnMField;

/// The exchange of two rows of an array, which is its own inverse.
class CrvMFSwapRowsCommand : public CrvCommand {
public:
    /// Both rows exist. The field is not owned.
    CrvMFSwapRowsCommand(KnMField* field, int row1, int row2);

    void execute() override;
    void undo() override;
    void redo() override;

private:
    KnMField* m_field; // not owned
    int m_row1;
    int m_row2;
};
