// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <limits>

/// So many decimals a float is shown with and may be typed with.
inline constexpr int floatDecimals = 6;
/// The largest finite float. A double, since validators and sliders compute in doubles.
inline constexpr double floatLimit = std::numeric_limits<float>::max();
