// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

#include <array>
#include <vector>

/// What the process holds at one time, as far as a leak would show in it.
class ResourceUse {
public:
    struct Kind {
        const char* name;
        const char* unit;
        /// How much more of it may be there at the end of a run than at its start, by a line that
        /// is fitted to all samples: less than what one leak in each round would come to.
        double bound;
    };
    static constexpr std::size_t count = 6;
    static const std::array<Kind, count>& kinds();

    /// Gives free memory back to the system first.
    static ResourceUse now();

    double value(std::size_t kind) const { return m_values[kind]; }
    QString text() const;

    /// How much a kind grows from the first to the last of these, by the line that fits best.
    static double growth(const std::vector<ResourceUse>& samples, std::size_t kind);

private:
    std::array<double, count> m_values {};
};
