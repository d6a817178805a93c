// SPDX-License-Identifier: BSD-3-Clause
#include "FuzzTarget.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

void require(bool condition, const char* what, std::string_view example)
{
    if (condition)
        return;
    std::fprintf(stderr, "%s: %.*s\n", what,
        static_cast<int>(std::min<std::size_t>(example.size(), 2000)), example.data());
    std::abort();
}

std::vector<std::string_view> linesOf(std::string_view input)
{
    std::vector<std::string_view> lines;
    while (!input.empty()) {
        const std::size_t end = std::min(input.find('\n'), input.size());
        lines.push_back(input.substr(0, end));
        input.remove_prefix(std::min(end + 1, input.size()));
    }
    return lines;
}

// NOLINTNEXTLINE(readability-identifier-naming): the name that libFuzzer calls
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzzInput({ reinterpret_cast<const char*>(data), size });
    return 0;
}
