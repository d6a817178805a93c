// SPDX-License-Identifier: BSD-3-Clause
#include "Hand.h"

#include <QApplication>
#include <QTest>
#include <QWheelEvent>

#include <utility>

namespace {

QWindow* windowOf(const Target& target) { return target.widget->window()->windowHandle(); }

QPoint onScreen(const Target& target) { return target.widget->mapToGlobal(target.place); }

/// Where the window system would send a key.
QWindow* windowForKeys()
{
    if (QWidget* const popup = QApplication::activePopupWidget())
        return popup->windowHandle();
    if (QWidget* const dialog = QApplication::activeModalWidget())
        return dialog->windowHandle();
    return QGuiApplication::focusWindow();
}

} // namespace

void Hand::click(const Target& target, Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
{
    add(Event::Press, target, button, modifiers);
    add(Event::Release, target, button, modifiers);
    goOn();
}

void Hand::doubleClick(const Target& target)
{
    add(Event::Press, target, Qt::LeftButton);
    add(Event::Release, target, Qt::LeftButton);
    add(Event::DoublePress, target, Qt::LeftButton);
    add(Event::Release, target, Qt::LeftButton);
    goOn();
}

void Hand::drag(const Target& from, const Target& to, Qt::KeyboardModifiers modifiers)
{
    constexpr int moves = 4; // the first ones only say that this is a drag
    add(Event::Press, from, Qt::LeftButton, modifiers);
    const QPoint start = onScreen(from);
    const QPoint way = onScreen(to) - start;
    for (int i = 1; i <= moves; ++i) {
        add(Event::Move, to, Qt::NoButton, modifiers);
        m_events.back().place = start + way * i / moves;
    }
    add(Event::Release, to, Qt::LeftButton, modifiers);
    goOn();
}

void Hand::moveTo(const Target& target)
{
    add(Event::Move, target);
    goOn();
}

void Hand::wheel(const Target& target, int turns, Qt::KeyboardModifiers modifiers)
{
    constexpr int notch = 120; // eighths of a degree
    QWindow* const window = windowOf(target);
    QWheelEvent event(target.widget->mapTo(target.widget->window(), target.place), onScreen(target),
        {}, QPoint(0, turns * notch), Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(window, &event);
}

void Hand::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    static const std::pair<Qt::KeyboardModifier, Qt::Key> held[]
        = { { Qt::ShiftModifier, Qt::Key_Shift }, { Qt::ControlModifier, Qt::Key_Control },
              { Qt::AltModifier, Qt::Key_Alt } };
    Qt::KeyboardModifiers down;
    for (const auto& [modifier, own] : held) {
        if (modifiers.testFlag(modifier)) {
            sendKey(QEvent::KeyPress, own, down, {});
            down |= modifier;
        }
    }
    const char ascii = QTest::keyToAscii(key);
    const QString text = ascii ? QString(QLatin1Char(ascii)) : QString();
    sendKey(QEvent::KeyPress, key, modifiers, text);
    sendKey(QEvent::KeyRelease, key, modifiers, text);
    for (const auto& [modifier, own] : held) {
        if (modifiers.testFlag(modifier)) {
            down &= ~Qt::KeyboardModifiers(modifier);
            sendKey(QEvent::KeyRelease, own, down, {});
        }
    }
}

void Hand::type(const QString& text)
{
    for (const QChar character : text) {
        const ushort code = character.unicode();
        const bool isPlain = code >= Qt::Key_Space && code <= Qt::Key_AsciiTilde;
        const Qt::Key key = isPlain ? Qt::Key(character.toUpper().unicode()) : Qt::Key_unknown;
        sendKey(QEvent::KeyPress, key, {}, character);
        sendKey(QEvent::KeyRelease, key, {}, character);
    }
}

/// Each one asks anew where to, since even a modifier may close a menu.
void Hand::sendKey(
    QEvent::Type type, Qt::Key key, Qt::KeyboardModifiers modifiers, const QString& text)
{
    QWindow* const window = windowForKeys();
    if (!window)
        return;
    qt_handleKeyEvent(window, type, key, modifiers, text, false);
    QCoreApplication::processEvents();
}

void Hand::add(
    Event::Kind kind, const Target& target, Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
{
    m_events.push_back({ kind, windowOf(target), onScreen(target), button, modifiers });
}

void Hand::goOn()
{
    while (!m_events.empty()) {
        const Event event = m_events.front();
        m_events.pop_front();
        deliver(event);
    }
}

/// A window that went away meanwhile leaves its events to one that is still there, as the window
/// system does with a button that is held.
void Hand::deliver(const Event& event)
{
    QWindow* window = event.window && event.window->isVisible() ? event.window.data() : nullptr;
    if (!window)
        window = QGuiApplication::topLevelAt(event.place);
    if (!window)
        window = windowForKeys();
    if (!window)
        return;
    QPoint place = window->mapFromGlobal(event.place);
    place.setX(qBound(1, place.x(), window->width() - 1));
    place.setY(qBound(1, place.y(), window->height() - 1));
    switch (event.kind) {
    case Event::DoublePress:
        QTest::lastMouseTimestamp -= QTest::mouseDoubleClickInterval;
        [[fallthrough]];
    case Event::Press:
        QTest::mousePress(window, event.button, event.modifiers, place);
        break;
    case Event::Release:
        QTest::mouseRelease(window, event.button, event.modifiers, place);
        break;
    case Event::Move:
        QTest::mouseMove(window, place);
        break;
    }
}
