// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "WfMFieldTable.h"

/// The table of an array of colours. Its first column shows the colours, and a click there opens
/// the colour dialog; the others are the components.
class WfMFColorTable : public WfMFieldTable {
    Q_OBJECT
public:
    WfMFColorTable(WfMFieldWidget* widget, QWidget* parent, const char* name);

protected Q_SLOTS:
    /// Lets the person choose the colour of a row. A column other than the first is ignored.
    void getColorFromEditor(int row, int col);
};
