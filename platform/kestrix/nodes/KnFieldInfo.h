// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <limits>

/// What a person should know of a field. It only informs: a field takes any value of its type. The
/// texts are UTF-8 and live as long as the process, as literals do.
struct KnFieldInfo {
    const char* sentence = ""; ///< what the field means, with a capital and a full stop
    const char* unit = ""; ///< that of its numbers, in the plural
    /// Bounds of each of its numbers, which themselves are allowed; infinite if there is none.
    double minimum = -std::numeric_limits<double>::infinity();
    double maximum = std::numeric_limits<double>::infinity();
};
