// SPDX-License-Identifier: BSD-3-Clause
#include "UndoKeys.h"

#include "WindowFamily.h"

#include <QAbstractSpinBox>
#include <QApplication>
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

UndoKeys::UndoKeys(QWidget* window)
    : QObject(window)
    , m_window(window)
{
    connect(qApp, &QApplication::focusChanged, this, &UndoKeys::followFocus);
    followFocus(nullptr, QApplication::focusWidget());
}

void UndoKeys::followFocus(QWidget*, QWidget* focus)
{
    if (m_watched)
        m_watched->removeEventFilter(this);
    m_watched = isInFamily(focus, m_window) ? focus : nullptr;
    if (m_watched)
        m_watched->installEventFilter(this);
}

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
