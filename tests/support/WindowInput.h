// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QLineEdit>
#include <QTest>
#include <QWidget>
#include <QWindow>

/// Clicks where `widget` is, by way of its window, as the window system does it: an open popup gets
/// the events first.
inline void clickThroughWindow(const QWidget* widget, const QPoint& offset = QPoint(3, 3))
{
    QTest::mouseClick(widget->window()->windowHandle(), Qt::LeftButton, {},
        widget->mapTo(widget->window(), offset));
}

/// Another window comes to the front of `window`, with the focus in a line, and goes again.
inline void inAnotherWindow(QWidget* window)
{
    QLineEdit other;
    other.show();
    other.setFocus();
    other.activateWindow();
    if (!QTest::qWaitForWindowActive(&other))
        qFatal("the other window isn't active");
    window->activateWindow();
    if (!QTest::qWaitForWindowActive(window))
        qFatal("the window isn't active again");
}
