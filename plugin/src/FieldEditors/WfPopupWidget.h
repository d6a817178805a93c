// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "WfSFLineWidget.h"

#include <QPixmap>

#include <vector>

class QLineEdit;

/// Base of the editors whose value has too many components for one row: the line is a disabled
/// summary of the value, and a button opens a frame with a grid of lines, one for each component.
class WfPopupWidget : public WfSFLineWidget {
    Q_OBJECT
public:
    WfPopupWidget(int rows, int columns, const char* name = nullptr);

    void load() override;
    /// Whether a line of the grid was edited; the summary doesn't count.
    bool edited() override;

    /// Gives each line of the grid the validator of a ValidatorKind; see setComponentValidator.
    void setValidatorKind(int kind);
    void resetCursorPositions();

protected Q_SLOTS:
    /// Closes the frame, or refreshes it and opens it beside the button.
    void managePopFramePos();

protected:
    QPushButton* m_editButton = nullptr;
    QFrame* m_popupFrame = nullptr; // a window, child of the editor's frame
    std::vector<QLineEdit*> m_lineEdits; // row after row; children of the popup

private:
    QPixmap m_editPixmap;
    int m_rows;
    int m_columns;
};
