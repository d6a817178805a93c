// SPDX-License-Identifier: BSD-3-Clause
#include "ProgramStart.h"

#include <QGuiApplication>
#include <QWindow>

#include <algorithm>
#include <chrono>
#include <cmath>

namespace {

constexpr int lookInterval = 100; // milliseconds
constexpr int quietLooks = 3; // then no other window is expected
constexpr int maxLooks = 50; // then no window is expected at all

std::chrono::steady_clock::time_point start;

int millisecondsUntil(double seconds)
{
    const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - start;
    return static_cast<int>(std::ceil(1000 * std::max(0.0, seconds - passed.count())));
}

QSet<QObject*> shownWindows()
{
    QSet<QObject*> shown;
    if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
        return shown;
    for (QWindow* const window : QGuiApplication::topLevelWindows()) {
        if (window->isVisible())
            shown.insert(window);
    }
    return shown;
}

} // namespace

ProgramStart::ProgramStart(std::optional<double> after)
    : m_watches(!after)
{
    m_timer.start(after ? millisecondsUntil(*after) : lookInterval, Qt::PreciseTimer, this);
}

void ProgramStart::begin() { start = std::chrono::steady_clock::now(); }

void ProgramStart::timerEvent(QTimerEvent*)
{
    const QSet<QObject*> windows = m_watches ? shownWindows() : QSet<QObject*>();
    m_quietLooks = !windows.isEmpty() && windows == m_windows ? m_quietLooks + 1 : 0;
    m_windows = windows;
    if (m_watches && m_quietLooks < quietLooks && ++m_looks < maxLooks)
        return;
    m_timer.stop();
    Q_EMIT settled();
}
