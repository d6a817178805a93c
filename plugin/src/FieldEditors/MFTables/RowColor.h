// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QColor>

class WfMFieldWidget;

/// The colour that one row of an array of colours shows.
struct RowColor {
    QColor color; ///< not valid when a component has no byte
    bool hasAlpha = false;

    friend bool operator==(const RowColor&, const RowColor&) = default;
};

/// Asks the editor for the components as it shows them, behind its first column.
RowColor rowColor(WfMFieldWidget& widget, int row);
