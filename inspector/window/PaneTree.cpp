// SPDX-License-Identifier: BSD-3-Clause
#include "PaneTree.h"

void PaneTree::focusInEvent(QFocusEvent* event)
{
    if (currentIndex().isValid()) {
        QTreeView::focusInEvent(event);
        return;
    }
    QAbstractScrollArea::focusInEvent(event);
    viewport()->update();
}
