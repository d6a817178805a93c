// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

/// Walks through a text and takes values from it. Where it finds something else than it was asked
/// for, it notes the place and what was expected there; reading ends with the first such failure.
class KnTextReader {
public:
    explicit KnTextReader(std::string_view text)
        : m_first(text.data())
        , m_next(text.data())
        , m_last(text.data() + text.size())
    {
    }

    void skipBlanks()
    {
        while (m_next != m_last && isBlank(*m_next))
            ++m_next;
    }
    /// Skips blanks, then one character if it is this one.
    bool accept(char c)
    {
        skipBlanks();
        if (m_next == m_last || *m_next != c)
            return false;
        ++m_next;
        return true;
    }
    /// Skips blanks; true if nothing follows.
    bool atEnd()
    {
        skipBlanks();
        return m_next == m_last;
    }
    bool expectEnd() { return atEnd() || fail("the end of the text"); }
    /// Takes a `""` that stands alone, which is the default value in the text form of every type.
    bool acceptDefault();

    /// Decimal or `0x` hexadecimal, with or without a sign. A number outside the range of the type
    /// is refused.
    template <std::integral Number>
    bool read(Number& value)
    {
        std::uint64_t magnitude = 0;
        bool negative = false;
        const char* const start = beginNumber();
        if (!readInteger(magnitude, negative))
            return false;
        constexpr auto max = static_cast<std::uint64_t>(std::numeric_limits<Number>::max());
        constexpr std::uint64_t below = std::is_signed_v<Number> ? max + 1 : 0;
        if (magnitude > (negative ? below : max)) {
            m_next = start;
            return failRange(std::to_string(std::numeric_limits<Number>::min()),
                std::to_string(std::numeric_limits<Number>::max()));
        }
        value = static_cast<Number>(negative ? std::uint64_t { 0 } - magnitude : magnitude);
        return true;
    }
    /// A decimal number, also `inf` and `nan`. One that is too large for the type is refused; one
    /// that is too small becomes the nearest that there is, or 0.
    bool read(float& value);
    bool read(double& value);
    /// A text in double quotes, or one bare word, which is taken as it stands.
    bool readString(std::string& value);
    /// One bare word; empty if there is none.
    std::string_view takeWord();

    /// Skips blanks and takes everything up to one of these characters or the end of the text,
    /// without trailing blanks.
    std::string_view takeUpTo(std::string_view characters);

    /// While set, a comma and a closing bracket end a bare word.
    void setInArray(bool inArray) { m_inArray = inArray; }

    /// Notes that something else was expected here, and gives false.
    bool fail(std::string expected);
    /// Adds to a failure of the number just read which of `count` numbers it was; `index` is from
    /// 0.
    bool failComponent(int index, int count);

    const char* position() const { return m_next; }
    /// Goes back to an earlier `position`, so that a failure is reported there.
    void setPosition(const char* position) { m_next = position; }
    std::size_t remaining() const { return static_cast<std::size_t>(m_last - m_next); }
    std::size_t consumed() const { return static_cast<std::size_t>(m_next - m_first); }
    /// Where the failure is, in bytes from the start of the text.
    std::size_t failureOffset() const { return static_cast<std::size_t>(m_failure - m_first); }
    const std::string& expected() const { return m_expected; }

    static constexpr bool isBlank(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

private:
    bool atDelimiter() const
    {
        return m_next == m_last || isBlank(*m_next) || *m_next == ',' || *m_next == ']';
    }
    const char* beginNumber()
    {
        skipBlanks();
        return m_next;
    }
    bool readInteger(std::uint64_t& magnitude, bool& negative);
    template <class Number>
    bool readReal(Number& value);
    /// Of a number in [first, end) that its type can't hold, or that isn't finite; a failure is at
    /// `start`.
    template <class Number>
    bool readExtreme(const char* start, const char* first, const char* end, Number& value);
    bool failRange(const std::string& min, const std::string& max);

    const char* m_first;
    const char* m_next;
    const char* m_last;
    const char* m_failure = nullptr;
    std::string m_expected;
    bool m_inArray = false;
};
