// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "Targets.h"

#include <QPointer>
#include <QWindow>

#include <deque>
#include <vector>

/// Mouse and keyboard, which reach the program as the window system hands their events over: an
/// open popup and a dialog come first.
///
/// A handler may open a loop of its own, as a menu and a drag do. What is left of the input is done
/// from within that loop by `goOn`, since a person would let go of the button there, too.
class Hand {
public:
    void click(const Target& target, Qt::MouseButton button = Qt::LeftButton,
        Qt::KeyboardModifiers modifiers = {});
    void doubleClick(const Target& target);
    /// Presses at one place and releases at the other one.
    void drag(const Target& from, const Target& to, Qt::KeyboardModifiers modifiers = {});
    void moveTo(const Target& target);
    /// `turns` is the number of notches; away from the person if it is negative.
    void wheel(const Target& target, int turns, Qt::KeyboardModifiers modifiers = {});

    /// Where the focus is.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
    void type(const QString& text);

    bool isBusy() const { return !m_events.empty(); }
    void goOn();

private:
    struct Event {
        enum Kind { Press, Release, Move, DoublePress } kind;
        QPointer<QWindow> window;
        QPoint place; // on the screen
        Qt::MouseButton button;
        Qt::KeyboardModifiers modifiers;
    };

    void add(Event::Kind kind, const Target& target, Qt::MouseButton button = Qt::NoButton,
        Qt::KeyboardModifiers modifiers = {});
    static void deliver(const Event& event);
    static void sendKey(
        QEvent::Type type, Qt::Key key, Qt::KeyboardModifiers modifiers, const QString& text);
    std::deque<Event> m_events;
};
