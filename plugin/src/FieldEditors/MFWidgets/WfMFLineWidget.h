// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "WfMFieldWidget.h"

/// Base of the editors of arrays of numbers: one column, one row a value. It reads and writes a row
/// in the kernel's text form of one value, so that a member of the family brings no number format
/// of its own. A cell edit is written without a command; rows that are added, deleted and moved are
/// undoable.
class WfMFLineWidget : public WfMFieldWidget {
public:
    explicit WfMFLineWidget(const char* name);

    void load() override;
    void swapFieldValues(int row1, int row2) override;
    void setFieldValue(int row, int col, QString text) override;
    QString getCellText(int row, int col) override;
    bool acceptsField(KnField* field) override;
};
