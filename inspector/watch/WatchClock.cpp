// SPDX-License-Identifier: BSD-3-Clause
#include "WatchClock.h"

#include <chrono>
#include <utility>

namespace {

constexpr double sameTime = 0.001; // in seconds

double steadySeconds()
{
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration<double>(now).count();
}

} // namespace

WatchClock::WatchClock(QObject* parent)
    : QObject(parent)
    , m_source(&steadySeconds)
{
}

double WatchClock::stamp()
{
    const double now = m_source();
    if (!m_epoch)
        m_epoch = now;
    if (const double time = now - *m_epoch; time >= m_latest + sameTime)
        m_latest = time;
    if (!std::exchange(m_announced, true))
        Q_EMIT stamped();
    return m_latest;
}
