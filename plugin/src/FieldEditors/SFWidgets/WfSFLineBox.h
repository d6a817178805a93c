// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "WfSFColumnBox.h"

class QLineEdit;

/// Base of the column boxes whose inputs are lines for floats. Return applies all of them, leaving
/// a line applies what was edited.
class WfSFLineBox : public WfSFColumnBox {
    Q_OBJECT
public:
    /// Whether any line was edited.
    bool edited() override;

    void resetCursorPositions();

protected:
    WfSFLineBox(
        int columns, const ColumnBoxStyle& style, Qt::Alignment alignment, const char* name);

    QWidget* makeInput(int height) override;

    void showNumbers(const float* numbers);
    float number(std::size_t column) const;

    std::vector<QLineEdit*> m_lines; // in column order, children of the edition frame

private:
    Qt::Alignment m_alignment;
};
