// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QColor>

class WfMFieldWidget;

/// The colour that one row of an array of colours shows.
struct RowColor {
    QColor color; ///< invalid when a component is outside of what a colour can hold
    bool hasAlpha = false;

    friend bool operator==(const RowColor&, const RowColor&) = default;
};

/// Reads the components from the texts of the cells behind the colour column.
RowColor rowColor(WfMFieldWidget& widget, int row);
