// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <algorithm>
#include <cmath>
#include <limits>

/// The lowest and the highest of some numbers. Infinities and what isn't a number don't count,
/// since they have no place on a scale.
struct WatchRange {
    double low = std::numeric_limits<double>::infinity();
    double high = -std::numeric_limits<double>::infinity();

    bool isEmpty() const { return low > high; }
    void include(double value)
    {
        if (!std::isfinite(value))
            return;
        low = std::min(low, value);
        high = std::max(high, value);
    }
    void include(const WatchRange& other)
    {
        low = std::min(low, other.low);
        high = std::max(high, other.high);
    }

    friend bool operator==(const WatchRange&, const WatchRange&) = default;
};
