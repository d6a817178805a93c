// SPDX-License-Identifier: BSD-3-Clause
#include "KbString.h"

#include <algorithm>
#include <utility>

namespace {

constexpr char32_t replacement = 0xFFFD;

constexpr bool isHighSurrogate(char32_t c) { return c >= 0xD800 && c < 0xDC00; }
constexpr bool isLowSurrogate(char32_t c) { return c >= 0xDC00 && c < 0xE000; }

constexpr unsigned toUnsigned(char unit) { return static_cast<unsigned char>(unit); }
constexpr unsigned toUnsigned(char16_t unit) { return unit; }
constexpr unsigned toUnsigned(std::uint16_t unit) { return unit; }

/// How many of these are ASCII, from the front on. Long texts are, for the most part, and what is
/// looked at in blocks goes many times faster than character by character.
template <class Unit>
std::size_t countAscii(const Unit* text, std::size_t length)
{
    constexpr std::size_t block = 32;
    constexpr unsigned highest = 0x80;
    std::size_t i = 0;
    for (; length - i >= block; i += block) {
        unsigned all = 0;
        for (std::size_t j = 0; j < block; ++j)
            all |= toUnsigned(text[i + j]);
        if (all >= highest)
            break;
    }
    while (i < length && toUnsigned(text[i]) < highest)
        ++i;
    return i;
}

/// Appends so many ASCII characters.
template <class Text, class Unit>
void appendAscii(Text& out, const Unit* text, std::size_t length)
{
    const std::size_t start = out.size();
    out.resize(start + length);
    std::transform(text, text + length, out.begin() + static_cast<std::ptrdiff_t>(start),
        [](Unit unit) { return static_cast<typename Text::value_type>(unit); });
}

/// Appends one character; a lone surrogate is written like any other character of its size.
void appendUtf8(std::string& out, char32_t c)
{
    const auto tail = [&](int shift) { out += static_cast<char>(0x80 | ((c >> shift) & 0x3F)); };
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | (c >> 6));
        tail(0);
    } else if (c < 0x10000) {
        out += static_cast<char>(0xE0 | (c >> 12));
        tail(6);
        tail(0);
    } else {
        out += static_cast<char>(0xF0 | (c >> 18));
        tail(12);
        tail(6);
        tail(0);
    }
}

/// Takes one character from the front of a text that isn't empty. A byte that starts no character
/// counts as a replacement character.
char32_t takeUtf8(std::string_view& text)
{
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char lead = byte(0);
    std::size_t length = 1;
    char32_t c = lead;
    char32_t least = 0;
    if (lead >= 0xC2 && lead < 0xE0) {
        length = 2;
        c = lead & 0x1FU;
        least = 0x80;
    } else if (lead >= 0xE0 && lead < 0xF0) {
        length = 3;
        c = lead & 0x0FU;
        least = 0x800;
    } else if (lead >= 0xF0 && lead < 0xF5) {
        length = 4;
        c = lead & 0x07U;
        least = 0x10000;
    } else if (lead >= 0x80) {
        c = replacement;
    }
    bool sound = length <= text.size();
    for (std::size_t i = 1; sound && i < length; ++i) {
        sound = (byte(i) & 0xC0U) == 0x80U;
        c = (c << 6) | (byte(i) & 0x3FU);
    }
    if (!sound || c < least || c > 0x10FFFF) {
        c = replacement;
        length = 1;
    }
    text.remove_prefix(length);
    return c;
}

template <class Unit>
KbString fromUnits(const Unit* text, std::ptrdiff_t length)
{
    if (!text)
        return {};
    if (length < 0) {
        length = 0;
        while (text[length])
            ++length;
    }
    std::string utf8;
    utf8.reserve(static_cast<std::size_t>(length));
    for (std::ptrdiff_t i = 0; i < length;) {
        if (const std::size_t ascii = countAscii(text + i, static_cast<std::size_t>(length - i))) {
            appendAscii(utf8, text + i, ascii);
            i += static_cast<std::ptrdiff_t>(ascii);
            continue;
        }
        char32_t c = text[i++];
        if (isHighSurrogate(c) && i < length && isLowSurrogate(text[i]))
            c = 0x10000 + ((c - 0xD800) << 10) + (text[i++] - 0xDC00U);
        appendUtf8(utf8, c);
    }
    return KbString(std::move(utf8));
}

} // namespace

KbString::KbString(const char* utf8)
    : m_text(utf8 ? utf8 : "")
    , m_null(!utf8)
{
}

KbString::KbString(std::string_view utf8)
    : m_text(utf8)
    , m_null(false)
{
}

KbString::KbString(std::string&& utf8) noexcept
    : m_text(std::move(utf8))
    , m_null(false)
{
}

KbString KbString::fromLatin1(std::string_view latin1)
{
    std::string utf8;
    utf8.reserve(latin1.size());
    for (const char c : latin1)
        appendUtf8(utf8, static_cast<unsigned char>(c));
    return KbString(std::move(utf8));
}

KbString KbString::fromUtf16(const char16_t* text, std::ptrdiff_t length)
{
    return fromUnits(text, length);
}

KbString KbString::fromUtf16(const std::uint16_t* text, std::ptrdiff_t length)
{
    return fromUnits(text, length);
}

std::string KbString::toLatin1() const
{
    std::string latin1;
    latin1.reserve(m_text.size());
    for (std::string_view rest = m_text; !rest.empty();) {
        const char32_t c = takeUtf8(rest);
        latin1 += c < 0x100 ? static_cast<char>(c) : '?';
    }
    return latin1;
}

std::u16string KbString::toUtf16() const
{
    std::u16string utf16;
    utf16.reserve(m_text.size());
    for (std::string_view rest = m_text; !rest.empty();) {
        if (const std::size_t ascii = countAscii(rest.data(), rest.size())) {
            appendAscii(utf16, rest.data(), ascii);
            rest.remove_prefix(ascii);
            continue;
        }
        const char32_t c = takeUtf8(rest);
        if (c < 0x10000) {
            utf16 += static_cast<char16_t>(c);
        } else {
            utf16 += static_cast<char16_t>(0xD800 + ((c - 0x10000) >> 10));
            utf16 += static_cast<char16_t>(0xDC00 + ((c - 0x10000) & 0x3FF));
        }
    }
    return utf16;
}

void KbString::makeNull() noexcept
{
    m_text.clear();
    m_null = true;
}
