// SPDX-License-Identifier: BSD-3-Clause
#pragma once

/// A point in time or a duration, in seconds.
class KbTime {
public:
    constexpr KbTime() = default;
    explicit constexpr KbTime(double seconds)
        : m_seconds(seconds)
    {
    }

    constexpr double getValue() const { return m_seconds; }

    friend constexpr bool operator==(const KbTime&, const KbTime&) = default;

private:
    double m_seconds = 0.0;
};
