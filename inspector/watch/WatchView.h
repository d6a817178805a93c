// SPDX-License-Identifier: BSD-3-Clause
#pragma once

/// Which part of the stored time is shown, in seconds. It is live while it ends where the stored
/// time does, and then goes along with it.
class WatchView {
public:
    static constexpr double minute = 60;
    static constexpr double shortest = 0.01;

    double from() const { return m_to - m_span; }
    double to() const { return m_to; }
    double span() const { return m_span; }
    double end() const { return m_end; }
    bool isLive() const { return m_live; }

    /// What is stored. A minute can be shown in any case.
    void setStored(double start, double end);
    /// Makes the span `factor` times as long; what is shown at `time` stays where it is, as far as
    /// the stored time allows.
    void zoom(double factor, double time);
    /// Later for a positive number.
    void pan(double seconds);
    /// The last minute, and live.
    void goLive();

private:
    void limit();

    double m_start = -minute;
    double m_end = 0;
    double m_span = minute;
    double m_to = 0;
    bool m_live = true;
};
