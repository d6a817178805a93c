// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "TestShell.h"

#include <QApplication>
#include <QTimer>

/// Runs `open`, which opens a modal `Dialog`, and lets `act` use it, as a person would, until it is
/// closed. False if none came up, or if it was left open.
template <class Dialog, class Open, class Act>
bool inDialogOpenedBy(Open open, Act act)
{
    bool closed = false;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isVisible())
            return;
        timer.stop();
        act(dialog);
        closed = !dialog->isVisible();
        if (!closed)
            dialog->reject();
    });
    timer.start(0);
    open();
    TestShell::settle();
    return closed;
}
