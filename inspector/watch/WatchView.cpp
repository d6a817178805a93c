// SPDX-License-Identifier: BSD-3-Clause
#include "WatchView.h"

#include <algorithm>

void WatchView::setStored(double start, double end)
{
    m_start = std::min(start, end - minute);
    m_end = end;
    if (m_live)
        m_to = end;
    limit();
}

void WatchView::zoom(double factor, double time)
{
    const double span = std::clamp(m_span * factor, shortest, m_end - m_start);
    m_to = time + (m_to - time) * span / m_span;
    m_span = span;
    limit();
    m_live = m_to >= m_end;
}

void WatchView::pan(double seconds)
{
    m_to += seconds;
    limit();
    m_live = m_to >= m_end;
}

void WatchView::goLive()
{
    m_span = minute;
    m_to = m_end;
    m_live = true;
}

void WatchView::limit()
{
    m_span = std::min(m_span, m_end - m_start);
    // Rounding must not leave the lower limit above the upper one.
    m_to = std::min(std::max(m_to, m_start + m_span), m_end);
}
