// SPDX-License-Identifier: BSD-3-Clause
#include "WatchSeries.h"

namespace {

// What the ranges leave out.
constexpr double nothing = std::numeric_limits<double>::quiet_NaN();

double heldValue(const WatchSample* sample)
{
    return sample && sample->kind != WatchSample::Kind::Gap ? sample->value : nothing;
}

} // namespace

std::size_t WatchSeries::firstAfter(double time) const
{
    std::size_t low = 0;
    std::size_t high = size();
    while (low < high) {
        const std::size_t middle = (low + high) / 2;
        if ((*this)[middle].time <= time)
            low = middle + 1;
        else
            high = middle;
    }
    return low;
}

const WatchSample* WatchSeries::at(double time) const
{
    const std::size_t next = firstAfter(time);
    if (next == 0 || (*this)[next - 1].kind == WatchSample::Kind::Gap)
        return nullptr;
    return &(*this)[next - 1];
}

const WatchSample* WatchSeries::latest() const
{
    for (std::size_t i = size(); i > 0; --i) {
        if ((*this)[i - 1].kind != WatchSample::Kind::Gap)
            return &(*this)[i - 1];
    }
    return nullptr;
}

void WatchSeries::columns(double from, double to, double end, std::vector<WatchRange>& ranges) const
{
    const double width = (to - from) / static_cast<double>(ranges.size());
    std::size_t next = firstAfter(from);
    double held = heldValue(next > 0 ? &(*this)[next - 1] : nullptr);
    for (std::size_t i = 0; i < ranges.size(); ++i) {
        ranges[i] = WatchRange();
        const double start = from + width * static_cast<double>(i);
        if (start > end)
            continue;
        ranges[i].include(held);
        // The last column also shows what was sampled at this very moment.
        const bool last = i + 1 == ranges.size();
        const double stop = last ? std::nextafter(to, end + 1) : start + width;
        for (; next < size() && (*this)[next].time < stop; ++next) {
            held = heldValue(&(*this)[next]);
            ranges[i].include(held);
        }
    }
}

WatchRange WatchSeries::range(double from, double to) const
{
    WatchRange range;
    const std::size_t first = firstAfter(from);
    for (std::size_t i = first > 0 ? first - 1 : 0; i < size() && (*this)[i].time <= to; ++i)
        range.include(heldValue(&(*this)[i]));
    return range;
}
