// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <cstdint>

/// Blocks that this process's operators handed out since it started. They put a header before each
/// block, and end the process when they get a block back that has none.
std::uint64_t headerBlockCount();
