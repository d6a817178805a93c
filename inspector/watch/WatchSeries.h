// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "WatchRange.h"

#include <cstddef>
#include <vector>

/// A number from a point in time on.
struct WatchSample {
    enum class Kind : char {
        Written, ///< by the program
        Edited, ///< by a person
        Gap, ///< from here to the next sample nobody looked; the value means nothing
    };

    double time; ///< in seconds
    double value;
    Kind kind = Kind::Written;
};

/// What one number was over time, in a ring that drops the oldest samples. A sample holds until the
/// next one.
class WatchSeries {
public:
    /// A minute of 270 samples a second, or more than four of sixty; 384 KiB when full.
    static constexpr std::size_t capacity = 16384;

    /// Not before the latest one.
    void add(const WatchSample& sample)
    {
        if (m_samples.size() < capacity) {
            m_samples.push_back(sample);
        } else {
            m_samples[m_first] = sample;
            m_first = m_first + 1 == capacity ? 0 : m_first + 1;
        }
    }

    std::size_t size() const { return m_samples.size(); }
    /// From the oldest, 0, to the latest.
    const WatchSample& operator[](std::size_t index) const
    {
        const std::size_t place = m_first + index;
        return m_samples[place < m_samples.size() ? place : place - m_samples.size()];
    }
    /// The index of the first sample later than that; `size` if there is none.
    std::size_t firstAfter(double time) const;
    /// What holds at a time; null before the first sample and in a gap.
    const WatchSample* at(double time) const;
    /// The latest one that has a value; null if there is none.
    const WatchSample* latest() const;

    /// What held anywhere in a time, cut into equal columns. A column begins with what held at the
    /// end of the one before, so that the ranges of a curve hang together. Columns past `end` and
    /// inside gaps are empty.
    void columns(double from, double to, double end, std::vector<WatchRange>& ranges) const;
    /// What held anywhere from `from` to `to`, both included.
    WatchRange range(double from, double to) const;

private:
    std::vector<WatchSample> m_samples; // a ring once it is full
    std::size_t m_first = 0; // the oldest
};
