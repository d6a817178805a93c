// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "WfMFieldWidget.h"

#include <vector>

class QFrame;
class WfTablePopupLineEdit;

/// Base of the editors of arrays whose values don't fit on a row of the table. The table is an
/// overview that can't be edited, and a button opens a popup with a grid of lines, one for each
/// component of the current row. Each change of a line's text is an edit of its own.
class WfTablePopupWidget : public WfMFieldWidget {
    Q_OBJECT
public:
    /// `rows` and `columns` are those of the grid.
    WfTablePopupWidget(int rows, int columns, const char* name = nullptr);

    void load() override;
    /// Also brings an open popup up to date.
    void updateFromField() override;

    /// What line number `index` of the popup shows for a row; empty if there is no such row.
    virtual QString getPopupCellText(int row, int index);

    /// Gives each line of the popup the validator of a ValidatorKind; see setComponentValidator.
    void setValidatorKind(int kind);

protected Q_SLOTS:
    /// Fills the popup with the current row, and opens it to the left of the panel or closes it.
    void setEditFrame();

protected:
    QPushButton* m_editButton = nullptr;
    QFrame* m_popupFrame = nullptr; // a window, child of the editor's frame
    // Line `r + c * m_columns` is in row r and column c of the grid; children of the popup.
    std::vector<WfTablePopupLineEdit*> m_lineEdits;

private:
    friend class WfTablePopupLineEdit; // which edits the current row

    void buildPopup();
    void fill(bool keepTyped);
    void placePopup();

    QPixmap m_editPixmap;
    int m_rows;
    int m_columns;
};
