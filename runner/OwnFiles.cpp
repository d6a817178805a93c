// SPDX-License-Identifier: BSD-3-Clause
#include "OwnFiles.h"

#include <algorithm>
#include <array>
#include <string_view>

bool isOwnFile(const char* path)
{
    constexpr std::array<std::string_view, 4> starts { "corvane_run.so", "libcorvane_", "libubn_",
        "ubn_corvane_extender" };
    std::string_view name(path);
    name.remove_prefix(name.rfind('/') + 1); // 0 without a slash
    return std::any_of(starts.begin(), starts.end(),
        [name](std::string_view start) { return name.substr(0, start.size()) == start; });
}
