// SPDX-License-Identifier: BSD-3-Clause
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

// NOLINTNEXTLINE(readability-identifier-naming): the name that libFuzzer calls
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

void feed(const std::string& input)
{
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
}

/// Texts of many kinds to start from.
const char* const seeds[] = {
    "\"\"",
    "TRUE",
    "-0x7fffffff",
    "1.5e-45 inf -nan",
    "1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1e38",
    "[ 0.1 2 3, 4 5 6, \"\", ]",
    "[ \"a \\\"b\\\" \\\\ c\\n\", d ]",
    "(A | B | 0x10)",
    "2 2 3 0xff0000 0xff00 0xff 0x0",
};

} // namespace

/// Runs the files that are named, or a fixed number of inputs made from the seeds by small changes,
/// the same ones each time.
int main(int argc, char** argv)
{
    for (int i = 1; i < argc; ++i) {
        std::ifstream file(argv[i], std::ios::binary);
        if (!file) {
            std::fprintf(stderr, "%s can't be read\n", argv[i]);
            return 2;
        }
        feed(std::string(std::istreambuf_iterator<char>(file), {}));
    }
    if (argc > 1)
        return 0;

    constexpr int inputCount = 300000;
    const std::string alphabet = "0123456789+-.eExX \t\n,[]()|\"\\nabcDEFinfTRUE\x80\xc3\xff";
    std::mt19937 random(1); // NOLINT: the same inputs each time
    const auto below = [&](std::size_t end) { return static_cast<std::size_t>(random()) % end; };
    for (int i = 0; i < inputCount; ++i) {
        std::string input = seeds[below(std::size(seeds))];
        for (std::size_t changes = below(6); changes > 0 && !input.empty(); --changes) {
            const std::size_t place = below(input.size());
            switch (below(4)) {
            case 0:
                input.erase(place, 1 + below(4));
                break;
            case 1:
                input.insert(place, 1, alphabet[below(alphabet.size())]);
                break;
            case 2:
                input[place] = alphabet[below(alphabet.size())];
                break;
            default:
                input.insert(place, input.substr(below(input.size()), 8));
            }
        }
        // The first byte picks the type.
        feed(static_cast<char>(below(256)) + input);
    }
    return 0;
}
