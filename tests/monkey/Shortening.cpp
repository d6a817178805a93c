// SPDX-License-Identifier: BSD-3-Clause
#include "Shortening.h"

#include <algorithm>

std::vector<int> shortened(
    std::vector<int> steps, const std::function<bool(const std::vector<int>&)>& fails, int tries)
{
    std::size_t parts = 2;
    while (!steps.empty() && tries > 0) {
        const std::size_t length = (steps.size() + parts - 1) / parts;
        bool isShorter = false;
        for (std::size_t start = 0; start < steps.size() && tries > 0 && !isShorter;
             start += length) {
            const auto from = steps.begin() + std::ptrdiff_t(start);
            const auto to = steps.begin() + std::ptrdiff_t(std::min(start + length, steps.size()));
            std::vector<int> rest(steps.begin(), from);
            rest.insert(rest.end(), to, steps.end());
            --tries;
            if (fails(rest)) {
                steps = std::move(rest);
                isShorter = true;
            }
        }
        if (isShorter)
            parts = std::max<std::size_t>(parts - 1, 2);
        else if (length == 1)
            break;
        else
            parts = std::min(2 * parts, steps.size());
    }
    return steps;
}
