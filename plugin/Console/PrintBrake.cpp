// SPDX-License-Identifier: BSD-3-Clause
#include "PrintBrake.h"

#include <algorithm>

PrintBrake::PrintBrake(std::size_t limit, Clock::duration patience)
    : m_limit(limit)
    , m_patience(patience)
{
}

PrintBrake::Place PrintBrake::enter(std::size_t weight)
{
    std::unique_lock lock(m_mutex);
    if (m_load == 0)
        m_lastStep = Clock::now();
    if (m_engaged && m_load >= m_limit) {
        const Clock::time_point longest = Clock::now() + m_patience;
        const auto end
            = [this, longest] { return std::min(longest, m_lastStep.load() + m_patience); };
        while (m_engaged && m_load >= m_limit && Clock::now() < end())
            m_eased.wait_until(lock, end());
    }
    m_load += weight;
    return { this, weight };
}

void PrintBrake::noteArrival() { m_lastStep = Clock::now(); }

void PrintBrake::setEngaged(bool engaged)
{
    const std::lock_guard lock(m_mutex);
    m_engaged = engaged;
    m_eased.notify_all();
}

void PrintBrake::leave(std::size_t weight)
{
    const std::lock_guard lock(m_mutex);
    const std::size_t before = std::exchange(m_load, m_load - weight);
    m_lastStep = Clock::now();
    // All threads at once: one for each message would cost a change of thread for each.
    if (before > m_limit / 2 && m_load <= m_limit / 2)
        m_eased.notify_all();
}
