// SPDX-License-Identifier: BSD-3-Clause
#include "KnTextReader.h"

#include <charconv>
#include <cmath>

namespace {

/// Whether a number that its type can't hold is too small rather than too large. The position of
/// its first non-zero digit, counted from the point, and its exponent decide. [first, last) is a
/// well-formed number that isn't infinite.
bool isTooSmall(const char* first, const char* last)
{
    long place = 0;
    bool started = false;
    bool behindPoint = false;
    for (; first != last && *first != 'e' && *first != 'E'; ++first) {
        if (*first == '.')
            behindPoint = true;
        else if (*first >= '0' && *first <= '9') {
            started = started || *first != '0';
            place += started && !behindPoint ? 1 : 0;
            place -= !started && behindPoint ? 1 : 0;
        }
    }
    long exponent = 0;
    if (first != last) {
        const bool negative = *++first == '-';
        first += *first == '+' || *first == '-' ? 1 : 0;
        // An exponent that a long can't hold outweighs any number of digits.
        if (std::from_chars(first, last, exponent).ec != std::errc())
            return negative;
        exponent = negative ? -exponent : exponent;
    }
    return !started || exponent < -place;
}

} // namespace

bool KnTextReader::fail(std::string expected)
{
    m_failure = m_next;
    m_expected = std::move(expected);
    return false;
}

bool KnTextReader::failRange(const std::string& min, const std::string& max)
{
    return fail("a number from " + min + " to " + max);
}

bool KnTextReader::failComponent(int index, int count)
{
    m_expected += " (number " + std::to_string(index + 1) + " of " + std::to_string(count) + ')';
    return false;
}

bool KnTextReader::acceptDefault()
{
    skipBlanks();
    if (m_last - m_next < 2 || m_next[0] != '"' || m_next[1] != '"')
        return false;
    m_next += 2;
    if (atDelimiter())
        return true;
    m_next -= 2;
    return false;
}

bool KnTextReader::readInteger(std::uint64_t& magnitude, bool& negative)
{
    const char* const start = m_next;
    negative = m_next != m_last && *m_next == '-';
    if (m_next != m_last && (*m_next == '-' || *m_next == '+'))
        ++m_next;
    int base = 10;
    if (m_last - m_next > 2 && m_next[0] == '0' && (m_next[1] == 'x' || m_next[1] == 'X')) {
        base = 16;
        m_next += 2;
    }
    const auto [end, error] = std::from_chars(m_next, m_last, magnitude, base);
    if (error == std::errc::invalid_argument) {
        m_next = start;
        return fail("a whole number");
    }
    // What is too large for this is too large for the caller's type, too.
    if (error == std::errc::result_out_of_range)
        magnitude = std::numeric_limits<std::uint64_t>::max();
    m_next = end;
    return atDelimiter() || fail("the end of a whole number");
}

template <class Number>
bool KnTextReader::readReal(Number& value)
{
    const char* const start = beginNumber();
    const char* first = start;
    if (first != m_last && *first == '+' && m_last - first > 1 && first[1] != '-')
        ++first;
    const auto [end, error] = std::from_chars(first, m_last, value);
    if (error == std::errc::invalid_argument)
        return fail("a number");
    m_next = end;
    if (!atDelimiter())
        return fail("the end of a number");
    if (error == std::errc() && std::isfinite(value))
        return true;
    return readExtreme(start, first, end, value);
}

template <class Number>
bool KnTextReader::readExtreme(const char* start, const char* first, const char* end, Number& value)
{
    const bool negative = *first == '-';
    const char lead = first[negative ? 1 : 0];
    if (lead != '.' && (lead < '0' || lead > '9'))
        return true; // an infinity, or no number, by its name
    // Out of range, some libraries give an infinity or a zero, others nothing but the error.
    if (!isTooSmall(first, end)) {
        m_next = start;
        constexpr bool single = std::is_same_v<Number, float>;
        const std::string max = single ? "3.4028235e+38" : "1.7976931348623157e+308";
        return failRange('-' + max, max);
    }
    value = negative ? -Number(0) : Number(0);
    return true;
}

bool KnTextReader::read(float& value) { return readReal(value); }

bool KnTextReader::read(double& value) { return readReal(value); }

std::string_view KnTextReader::takeWord()
{
    skipBlanks();
    const char* const start = m_next;
    while (m_next != m_last && !isBlank(*m_next) && *m_next != '"'
        && !(m_inArray && (*m_next == ',' || *m_next == ']')))
        ++m_next;
    return { start, static_cast<std::size_t>(m_next - start) };
}

std::string_view KnTextReader::takeUpTo(std::string_view characters)
{
    skipBlanks();
    std::string_view taken(m_next, remaining());
    taken = taken.substr(0, taken.find_first_of(characters));
    while (!taken.empty() && isBlank(taken.back()))
        taken.remove_suffix(1);
    m_next += taken.size();
    return taken;
}

bool KnTextReader::readString(std::string& value)
{
    if (!accept('"')) {
        value = takeWord();
        return !value.empty() || fail("a word or a text in double quotes");
    }
    value.clear();
    while (true) {
        const char* const start = m_next;
        while (m_next != m_last && *m_next != '"' && *m_next != '\\')
            ++m_next;
        value.append(start, m_next);
        if (m_next == m_last)
            return fail("a closing double quote");
        if (*m_next++ == '"')
            return true;
        const char escaped = m_next == m_last ? '\0' : *m_next;
        if (escaped != '"' && escaped != '\\' && escaped != 'n')
            return fail("a double quote, a backslash or n behind a backslash");
        value += escaped == 'n' ? '\n' : escaped;
        ++m_next;
    }
}
