// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnFloatText.h"

#include <array>
#include <charconv>
#include <cmath>
#include <concepts>
#include <string>
#include <string_view>
#include <type_traits>

/// Appends the text form of values to a string, through a small buffer, so that a number costs
/// neither an allocation nor a call of the string.
class KnTextWriter {
public:
    explicit KnTextWriter(std::string& out)
        : m_out(out)
    {
    }
    KnTextWriter(const KnTextWriter&) = delete;
    KnTextWriter& operator=(const KnTextWriter&) = delete;
    ~KnTextWriter() { flush(); }

    /// Reserves room for `times` as much text again as was written so far, and a little more.
    void reserve(std::size_t times)
    {
        flush();
        m_out.reserve(m_out.size() * (times + 1) + m_out.size() / 8 * times);
    }

    void put(char c)
    {
        makeRoom();
        *m_next++ = c;
    }
    void put(std::string_view text)
    {
        flush();
        m_out += text;
    }
    /// In double quotes; quotes, backslashes and line breaks are escaped.
    void putQuoted(std::string_view text);

    void number(std::integral auto value)
    {
        makeRoom();
        m_next = std::to_chars(m_next, end(), value).ptr;
    }
    /// As a `0x` number in lower case.
    void hexadecimal(std::unsigned_integral auto value)
    {
        makeRoom();
        *m_next++ = '0';
        *m_next++ = 'x';
        m_next = std::to_chars(m_next, end(), value, 16).ptr;
    }
    /// The shortest text that reads back to the same bits: plain for magnitudes from 1e-4 to below
    /// 1e15, otherwise with an exponent.
    template <std::floating_point Number>
    void number(Number value)
    {
        makeRoom();
        if constexpr (std::is_same_v<Number, float>) {
            if (knIsPlainFloat(value)) {
                m_next = knWriteFloat(m_next, value);
                return;
            }
        }
        const Number magnitude = std::fabs(value);
        const bool plain
            = (magnitude >= Number(1e-4L) && magnitude < Number(1e15L)) || magnitude == 0;
        m_next = std::to_chars(
            m_next, end(), value, plain ? std::chars_format::fixed : std::chars_format::scientific)
                     .ptr;
    }

private:
    static constexpr std::ptrdiff_t longestNumber = 64;

    char* end() { return m_buffer.data() + m_buffer.size(); }
    void makeRoom()
    {
        if (end() - m_next < longestNumber)
            flush();
    }
    void flush()
    {
        m_out.append(m_buffer.data(), m_next);
        m_next = m_buffer.data();
    }

    std::string& m_out;
    std::array<char, 1024> m_buffer;
    char* m_next = m_buffer.data();
};
