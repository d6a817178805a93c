// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <string>
#include <string_view>
#include <vector>

/// What all fuzz targets share. A target is one source that defines `fuzzInput`, and one line of
/// CMakeLists.txt; libFuzzer or the replay of the corpus calls it.

/// Feeds one input to what is fuzzed and requires of the outcome what must hold for every input.
void fuzzInput(std::string_view input);

/// Ends the program where `condition` doesn't hold, and says what is wrong, with an example.
void require(bool condition, const char* what, std::string_view example = {});

/// What was accepted must survive its own text. `write` gives the text of a value, `read` makes a
/// value of a text, or something empty where it refuses the text.
template <class Value, class Write, class Read>
void requireFixedPoint(const Value& value, const Write& write, const Read& read)
{
    const std::string text = write(value);
    const auto again = read(text);
    require(static_cast<bool>(again), "its own text is refused", text);
    require(write(*again) == text, "its own text comes back different", text);
}

/// The lines of an input, without their ends. An input that ends in a newline has no empty line
/// behind it.
std::vector<std::string_view> linesOf(std::string_view input);
