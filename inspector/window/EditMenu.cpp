// SPDX-License-Identifier: BSD-3-Clause
#include "EditMenu.h"

#include "CrvServices.h"

#include <QUndoStack>

EditMenu::EditMenu(QWidget* parent)
    : QMenu(tr("&Edit"), parent)
{
    setObjectName(QStringLiteral("editMenu"));
    const QUndoStack* const stack = CrvServices::getInstance()->getUndoStack();
    QAction* const undo = stack->createUndoAction(this, tr("&Undo"));
    undo->setObjectName(QStringLiteral("undoAction"));
    undo->setShortcuts(QKeySequence::Undo);
    addAction(undo);
    QAction* const redo = stack->createRedoAction(this, tr("&Redo"));
    redo->setObjectName(QStringLiteral("redoAction"));
    // Both keys that people use, whichever of them is the platform's.
    redo->setShortcuts(
        { QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), QKeySequence(Qt::CTRL | Qt::Key_Y) });
    addAction(redo);
    addSeparator();
}
