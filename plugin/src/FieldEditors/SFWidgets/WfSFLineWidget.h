// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "WfSFieldWidget.h"

class QLineEdit;

/// Edits a single value of any type in its text form, in one line; every keystroke writes the text.
/// It serves the field types that have no editor of their own, and is the base of the editors that
/// show such a line as a summary.
class WfSFLineWidget : public WfSFieldWidget {
    Q_OBJECT
public:
    explicit WfSFLineWidget(const char* name = nullptr);

    void load() override;
    /// The cursor stays where the person left it, even when the kernel has rewritten the text.
    void updateFromField() override;
    bool edited() override;

    using WfSFieldWidget::applyChanges;

public Q_SLOTS:
    /// Writes the line's text, whatever the argument says. A text that the kernel refuses stays in
    /// the line until the next refresh, and the field stays as it is.
    virtual void applyChanges(QString text);
    virtual void setCursorPosition(int oldPos, int newPos);

protected:
    QLineEdit* m_lineEdit = nullptr; // child of the edition frame
    int m_cursorPosition = 0; // as the line last reported it; outlives the field
};
