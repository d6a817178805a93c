// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "WfTablePopupWidget.h"

/// Edits a KnMFMatrix. Each row of the overview shows the field as a whole; the popup holds the
/// current matrix, its columns from left to right being the matrix's rows.
class WfMFMatrixWidget : public WfTablePopupWidget {
public:
    explicit WfMFMatrixWidget(const char* name = nullptr);

    void load() override;
    void swapFieldValues(int row1, int row2) override;
    /// Writes the row with what the lines of the popup hold; column and text don't count.
    void setFieldValue(int row, int col, QString text) override;
    /// The text of the whole field, for all rows alike. Of a text that is longer than what a cell
    /// can show it is the beginning, so that the cost of painting a cell doesn't grow with the
    /// array; it is never less than the first 512 characters.
    QString getCellText(int row, int col) override;
    int getCellAlignment() override;
    bool acceptsField(KnField* field) override;
    QString getPopupCellText(int row, int index) override;
};
