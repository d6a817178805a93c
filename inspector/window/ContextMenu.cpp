// SPDX-License-Identifier: BSD-3-Clause
#include "ContextMenu.h"

#include <QAbstractItemView>
#include <QMenu>

QMenu* makeContextMenu(QAbstractItemView* view, const QString& name)
{
    view->setFocus();
    auto* const menu = new QMenu(view);
    menu->setObjectName(name);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    return menu;
}
