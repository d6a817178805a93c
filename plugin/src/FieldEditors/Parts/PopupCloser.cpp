// SPDX-License-Identifier: BSD-3-Clause
#include "PopupCloser.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalBlocker>

PopupCloser::PopupCloser(QWidget* popup, QWidget* owner, QAbstractButton* button)
    : QObject(popup)
    , m_popup(popup)
    , m_owner(owner)
    , m_button(button)
{
    m_popup->installEventFilter(this);
    m_owner->installEventFilter(this);
}

QWidget* PopupCloser::focusInPopup() const
{
    QWidget* const focus = QApplication::focusWidget();
    return m_popup->isAncestorOf(focus) ? focus : nullptr;
}

bool PopupCloser::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_owner) {
        if (event->type() == QEvent::Hide)
            m_popup->close();
        return false;
    }
    switch (event->type()) {
    case QEvent::MouseButtonPress: {
        const auto* const press = static_cast<QMouseEvent*>(event);
        if (m_popup->rect().contains(press->position().toPoint()))
            return false;
        // Qt passes a press that closes a popup on to the widget below. The button would open the
        // popup again.
        const bool onButton = m_button && m_button->isVisible()
            && m_button->rect().contains(
                m_button->mapFromGlobal(press->globalPosition().toPoint()));
        m_popup->setAttribute(Qt::WA_NoMouseReplay, onButton);
        m_popup->close();
        return true;
    }
    case QEvent::KeyPress:
        if (!static_cast<QKeyEvent*>(event)->matches(QKeySequence::Cancel))
            return false;
        if (QWidget* const line = focusInPopup()) {
            // With its signals on, it would commit when it loses the focus.
            const QSignalBlocker unheard(line);
            line->clearFocus();
        }
        m_popup->close();
        return true;
    case QEvent::Hide:
        // Qt returns the focus only to a window that has a widget to take it. A line that kept the
        // focus would commit later, whatever field is shown by then.
        if (QWidget* const line = focusInPopup())
            line->clearFocus();
        return false;
    default:
        return false;
    }
}
