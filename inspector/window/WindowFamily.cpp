// SPDX-License-Identifier: BSD-3-Clause
#include "WindowFamily.h"

#include <QWidget>

bool isInFamily(const QWidget* widget, const QWidget* window)
{
    // Parents lead on from a window to the one that it belongs to.
    while (widget && widget != window)
        widget = widget->parentWidget();
    return widget != nullptr;
}
