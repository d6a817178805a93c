// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <functional>
#include <vector>

/// Leaves out of a failing list of steps what it fails without: halves first, then ever smaller
/// parts, down to single steps. `fails` plays a list; it is called at most `tries` times. The
/// result fails, and if there were tries enough, it doesn't without any one of its steps.
std::vector<int> shortened(
    std::vector<int> steps, const std::function<bool(const std::vector<int>&)>& fails, int tries);
