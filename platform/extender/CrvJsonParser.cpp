// SPDX-License-Identifier: BSD-3-Clause
#include "CrvJsonParser.h"

#include <QByteArrayView>

#include <algorithm>
#include <array>

namespace {

/// After this many values, the room that the rest will need is estimated.
constexpr std::size_t sampleSize = 1024;

constexpr bool isNumberCharacter(char c)
{
    return (c >= '0' && c <= '9') || c == '-' || c == '+' || c == '.' || c == 'e' || c == 'E';
}

constexpr bool isHexDigit(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

/// What ends the plain part of a string: a quote, a backslash, and all that isn't ASCII.
constexpr auto endsRun = [] {
    std::array<bool, 256> ends {};
    for (std::size_t c = 0; c < ends.size(); ++c)
        ends[c] = c == '"' || c == '\\' || c >= 0x80;
    return ends;
}();

} // namespace

CrvJsonParser::CrvJsonParser(CrvJsonTree& tree)
    : m_marks(tree.m_marks)
    , m_first(tree.m_json.constData())
    , m_next(m_first)
    , m_end(m_first + tree.m_json.size())
{
}

bool CrvJsonParser::run()
{
    constexpr std::string_view byteOrderMark("\xEF\xBB\xBF");
    if (std::string_view(m_next, m_end).starts_with(byteOrderMark))
        m_next += byteOrderMark.size();
    skipBlanks();
    if (m_next == m_end || (*m_next != '{' && *m_next != '['))
        return false;
    do {
        if (!parseValue())
            return false;
    } while (!m_open.empty());
    skipBlanks();
    return m_next == m_end;
}

bool CrvJsonParser::parseValue()
{
    if (m_next == m_end)
        return false;
    switch (*m_next) {
    case '{':
        return open(Kind::Object);
    case '[':
        return open(Kind::Array);
    case '"':
        return parseString() && closeOrGoOn();
    case 't':
        return parseWord("true", Kind::True) && closeOrGoOn();
    case 'f':
        return parseWord("false", Kind::False) && closeOrGoOn();
    case 'n':
        return parseWord("null", Kind::Other) && closeOrGoOn();
    default:
        return parseNumber() && closeOrGoOn();
    }
}

bool CrvJsonParser::open(Kind kind)
{
    if (m_open.size() == maxDepth)
        return false;
    m_open.push_back(static_cast<std::uint32_t>(m_marks.size()));
    add(kind, m_next++, 0);
    skipBlanks();
    if (m_next != m_end && *m_next == (kind == Kind::Object ? '}' : ']'))
        return closeOrGoOn();
    ++m_marks[m_open.back()].size;
    return kind == Kind::Array || parseName();
}

bool CrvJsonParser::closeOrGoOn()
{
    while (!m_open.empty()) {
        CrvJsonTree::Mark& outer = m_marks[m_open.back()];
        const bool isObject = outer.kind == Kind::Object;
        if (accept(',')) {
            ++outer.size;
            skipBlanks();
            return !isObject || parseName();
        }
        if (!accept(isObject ? '}' : ']'))
            return false;
        outer.next = static_cast<std::uint32_t>(m_marks.size());
        m_open.pop_back();
    }
    return true;
}

bool CrvJsonParser::parseName()
{
    if (m_next == m_end || *m_next != '"' || !parseString() || !accept(':'))
        return false;
    skipBlanks();
    return true;
}

bool CrvJsonParser::parseString()
{
    const char* const start = ++m_next;
    bool isEscaped = false;
    while (true) {
        while (m_next != m_end && !endsRun[static_cast<unsigned char>(*m_next)])
            ++m_next;
        if (m_next == m_end)
            return false;
        if (*m_next == '"')
            break;
        isEscaped = isEscaped || *m_next == '\\';
        if (!(*m_next == '\\' ? parseEscape() : parseCharacter()))
            return false;
    }
    const auto length = static_cast<std::size_t>(m_next++ - start);
    add(isEscaped ? Kind::EscapedString : Kind::String, start, length);
    return true;
}

bool CrvJsonParser::parseEscape()
{
    ++m_next;
    if (m_next == m_end)
        return false;
    if (*m_next++ != 'u')
        return true; // any other byte stands for itself, or for what C means by it
    constexpr std::ptrdiff_t digits = 4;
    if (m_end - m_next < digits || !std::all_of(m_next, m_next + digits, isHexDigit))
        return false;
    m_next += digits;
    return true;
}

/// One that isn't ASCII, in UTF-8.
bool CrvJsonParser::parseCharacter()
{
    const auto byte = [this](int i) { return static_cast<unsigned char>(m_next[i]); };
    const unsigned lead = byte(0);
    const int length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || m_end - m_next < length)
        return false;
    for (int i = 1; i < length; ++i) {
        if ((byte(i) & 0xC0U) != 0x80U)
            return false;
    }
    // Too long for what it says, half of a surrogate pair, or beyond the last character.
    const unsigned second = byte(1);
    if ((lead == 0xE0 && second < 0xA0) || (lead == 0xED && second >= 0xA0)
        || (lead == 0xF0 && second < 0x90) || (lead == 0xF4 && second >= 0x90))
        return false;
    m_next += length;
    return true;
}

bool CrvJsonParser::parseNumber()
{
    const char* const start = m_next;
    m_next = std::find_if_not(m_next, m_end, isNumberCharacter);
    const QByteArrayView number(start, m_next);
    const qsizetype sign = number.startsWith('-') ? 1 : 0;
    const auto isDigit
        = [&](qsizetype i) { return i < number.size() && number[i] >= '0' && number[i] <= '9'; };
    bool isNumber = false;
    static_cast<void>(number.toDouble(&isNumber));
    // Other readers of numbers take a plus sign and leading zeros.
    if (!isNumber || number[sign] == '+' || (number[sign] == '0' && isDigit(sign + 1)))
        return false;
    add(Kind::Other, start, static_cast<std::size_t>(number.size()));
    return true;
}

bool CrvJsonParser::parseWord(std::string_view word, Kind kind)
{
    if (!std::string_view(m_next, m_end).starts_with(word))
        return false;
    add(kind, m_next, 0);
    m_next += word.size();
    return true;
}

void CrvJsonParser::add(Kind kind, const char* start, std::size_t size)
{
    const auto index = static_cast<std::uint32_t>(m_marks.size());
    if (index == sampleSize) {
        const auto behind = static_cast<std::size_t>(m_next - m_first);
        const auto ahead = static_cast<std::size_t>(m_end - m_next);
        m_marks.reserve(sampleSize + sampleSize * ahead / behind * 9 / 8);
    }
    m_marks.push_back({ static_cast<std::uint32_t>(start - m_first),
        static_cast<std::uint32_t>(size), index + 1, kind });
}

void CrvJsonParser::skipBlanks()
{
    while (m_next != m_end
        && (*m_next == ' ' || *m_next == '\n' || *m_next == '\t' || *m_next == '\r'))
        ++m_next;
}

bool CrvJsonParser::accept(char c)
{
    skipBlanks();
    if (m_next == m_end || *m_next != c)
        return false;
    ++m_next;
    return true;
}
