// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "WatchRange.h"

#include <QString>

#include <vector>

/// Where numbers stand between the lower and the upper edge of a plot.
class WatchScale {
public:
    /// With a margin around the range. An empty range gives 0 to 1, a single number stands in the
    /// middle.
    explicit WatchScale(const WatchRange& range);

    double low() const { return m_low; }
    double high() const { return m_high; }
    /// 0 for the lower edge, 1 for the upper one.
    double fraction(double value) const
    {
        // Halves, since the distance of two large numbers may be none.
        return (value / 2 - m_low / 2) / (m_high / 2 - m_low / 2);
    }

private:
    double m_low = 0;
    double m_high = 1;
};

/// A line of a grid.
struct WatchTick {
    double value;
    QString label; ///< with a point, in whatever locale
};

/// Up to about `most` round numbers from `low` to `high`, all with as many decimals as they need.
std::vector<WatchTick> roundTicks(double low, double high, int most);
