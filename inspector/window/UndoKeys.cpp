// SPDX-License-Identifier: BSD-3-Clause
#include "UndoKeys.h"

#include <QAbstractSpinBox>
#include <QKeyEvent>
#include <QLineEdit>

namespace {

// A spin box has the focus itself and passes keys on to its line.
const QLineEdit* lineEditOf(QObject* widget)
{
    if (const auto* spinBox = qobject_cast<QAbstractSpinBox*>(widget))
        return spinBox->findChild<QLineEdit*>();
    return qobject_cast<QLineEdit*>(widget);
}

} // namespace

bool UndoKeys::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::ShortcutOverride)
        return QObject::eventFilter(watched, event);
    const QLineEdit* const line = lineEditOf(watched);
    const auto* const key = static_cast<QKeyEvent*>(event);
    const bool hasNothing = line
        && ((key->matches(QKeySequence::Undo) && !line->isUndoAvailable())
            || (key->matches(QKeySequence::Redo) && !line->isRedoAvailable()));
    if (!hasNothing)
        return QObject::eventFilter(watched, event);
    event->ignore();
    return true;
}
