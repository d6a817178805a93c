// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/// The kernel's text class. It holds UTF-8, generalised so that a lone UTF-16 surrogate survives
/// the round trip. A string is null until it is given a text; a null string is empty too.
class KbString {
public:
    KbString() = default;
    /// Takes UTF-8; a null pointer gives a null string.
    KbString(const char* utf8); // NOLINT(google-explicit-constructor)
    explicit KbString(std::string_view utf8);
    explicit KbString(std::string&& utf8) noexcept;

    static KbString fromLatin1(std::string_view latin1);
    /// `length` counts code units; -1 reads up to the terminating zero.
    static KbString fromUtf16(const char16_t* text, std::ptrdiff_t length = -1);
    static KbString fromUtf16(const std::uint16_t* text, std::ptrdiff_t length = -1);

    /// A character outside Latin-1 becomes a question mark.
    std::string toLatin1() const;
    const std::string& toUtf8() const noexcept { return m_text; }
    std::u16string toUtf16() const;

    bool isEmpty() const noexcept { return m_text.empty(); }
    bool isNull() const noexcept { return m_null; }
    void makeNull() noexcept;

    /// Equal texts are equal; a null string equals an empty one.
    friend bool operator==(const KbString& a, const KbString& b) noexcept
    {
        return a.m_text == b.m_text;
    }

private:
    std::string m_text;
    bool m_null = true;
};
