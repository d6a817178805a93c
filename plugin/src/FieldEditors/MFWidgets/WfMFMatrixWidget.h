// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "WfTablePopupWidget.h"

/// Edits a KnMFMatrix. Each row of the overview shows the field as a whole; the popup shows the
/// current matrix, whose rows stand in the columns from left to right.
class WfMFMatrixWidget : public WfTablePopupWidget {
public:
    explicit WfMFMatrixWidget(const char* name = nullptr);

    void load() override;
    void swapFieldValues(int row1, int row2) override;
    /// Writes the row from the popup's lines; `col` and `text` are ignored.
    void setFieldValue(int row, int col, QString text) override;
    /// The text of the whole field, the same for every row. A text that is too long for the cell is
    /// cut, so that painting a cell doesn't cost more for a longer array; the first 512 characters
    /// are always kept.
    QString getCellText(int row, int col) override;
    int getCellAlignment() override;
    bool acceptsField(KnField* field) override;
    QString getPopupCellText(int row, int index) override;
};
