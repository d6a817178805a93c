// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QLineEdit>

class WfTablePopupWidget;

/// One line of the popup in which an array's current value is edited. It holds one component.
class WfTablePopupLineEdit : public QLineEdit {
    Q_OBJECT
public:
    /// `popup` is the editor that the line belongs to; it isn't owned. `index` is the line's number
    /// there.
    WfTablePopupLineEdit(int index, WfTablePopupWidget* popup, QWidget* parent, const char* name);

public Q_SLOTS:
    /// Makes the editor write the current row from all of its lines.
    void setCurrentValue(QString text);

private:
    WfTablePopupWidget* m_popup; // not owned
};
