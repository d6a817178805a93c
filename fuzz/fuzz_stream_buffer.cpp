// SPDX-License-Identifier: BSD-3-Clause
#include "FuzzTarget.h"
#include "StdStreamRedirector.h"

#include <sstream>

namespace {

using Texts = std::vector<std::string>;

void gather(const char* text, std::streamsize count, void* texts)
{
    static_cast<Texts*>(texts)->emplace_back(text, static_cast<std::size_t>(count));
}

/// What a captured stream has to deliver, told without a buffer.
struct Expected {
    void block(std::string_view text)
    {
        if (captured)
            delivered.emplace_back(text);
        else
            passedOn += text;
    }

    void character(char c)
    {
        if (!captured) {
            passedOn += c;
        } else if (c == '\n') {
            delivered.push_back(line);
            line.clear();
        } else {
            line += c;
        }
    }

    bool captured = true;
    std::string line;
    Texts delivered;
    std::string passedOn;
};

} // namespace

/// The input is a text with marks in it: "|" ends a write, "^" goes from blocks to single
/// characters and back, "~" releases the stream and captures it again, "!" flushes.
void fuzzInput(std::string_view input)
{
    std::stringbuf own;
    std::ostream stream(&own);
    Texts delivered;
    Expected expected;
    {
        StdStreamRedirector<char> redirector(stream, gather, &delivered);
        bool blocks = true;
        while (!input.empty()) {
            const std::size_t end = std::min(input.find_first_of("|^~!"), input.size());
            const std::string_view text = input.substr(0, end);
            if (blocks) {
                stream.write(text.data(), static_cast<std::streamsize>(text.size()));
                expected.block(text);
            } else {
                for (const char c : text) {
                    stream.put(c);
                    expected.character(c);
                }
            }
            const char mark = end < input.size() ? input[end] : '|';
            input.remove_prefix(std::min(end + 1, input.size()));
            if (mark == '^')
                blocks = !blocks;
            if (mark == '!')
                stream.flush();
            if (mark != '~')
                continue;
            if (expected.captured)
                redirector.release();
            else
                redirector.capture(gather, &delivered);
            expected.captured = !expected.captured;
            expected.line.clear();
        }
    }
    require(stream.rdbuf() == &own, "the stream hasn't got its own buffer back");
    require(stream.good(), "the stream failed");
    require(delivered == expected.delivered, "what was delivered differs");
    require(own.str() == expected.passedOn, "what was passed on differs", own.str());
}
