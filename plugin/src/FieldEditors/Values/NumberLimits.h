// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <limits>

/// The decimals that a slider shows of a float, and that may be typed.
inline constexpr int floatDecimals = 6;
/// The largest finite float. A double, since validators and sliders compute in doubles.
inline constexpr double floatLimit = std::numeric_limits<float>::max();
