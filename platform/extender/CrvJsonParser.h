// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvJsonTree.h"

/// Finds the values of a text for CrvJsonTree. Where JSON leaves it to the reader how strict to be,
/// this is as strict as QJsonDocument.
class CrvJsonParser {
public:
    explicit CrvJsonParser(CrvJsonTree& tree);

    bool run();

private:
    using Kind = CrvJsonTree::Kind;

    // Each gives false for what isn't JSON.
    bool parseValue();
    bool open(Kind kind);
    /// After a value: goes on to the next one, or out of what ends here.
    bool closeOrGoOn();
    bool parseName();
    bool parseString();
    bool parseEscape();
    bool parseCharacter();
    bool parseNumber();
    bool parseWord(std::string_view word, Kind kind);
    void add(Kind kind, const char* start, std::size_t size);
    void skipBlanks();
    bool accept(char c);

    static constexpr std::size_t maxDepth = 1024;

    std::vector<CrvJsonTree::Mark>& m_marks;
    const char* const m_first;
    const char* m_next;
    const char* const m_end;
    std::vector<std::uint32_t> m_open; // objects and arrays, the innermost one at the end
};
