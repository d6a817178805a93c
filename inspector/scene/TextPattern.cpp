// SPDX-License-Identifier: BSD-3-Clause
#include "TextPattern.h"

#include <algorithm>

namespace {

bool isAscii(char c) { return static_cast<unsigned char>(c) < 0x80; }

char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool sameLetter(char c, char lowerCase) { return lower(c) == lowerCase; }

} // namespace

TextPattern::TextPattern(const QString& text)
    : m_text(text)
{
    const std::string utf8 = text.toStdString();
    if (std::all_of(utf8.begin(), utf8.end(), isAscii))
        std::transform(utf8.begin(), utf8.end(), std::back_inserter(m_lower), lower);
}

bool TextPattern::isIn(const std::string& utf8) const
{
    if (m_text.isEmpty())
        return true;
    if (!m_lower.empty()
        && std::search(utf8.begin(), utf8.end(), m_lower.begin(), m_lower.end(), sameLetter)
            != utf8.end())
        return true;
    // Some letters beyond ASCII have their other case within.
    return !std::all_of(utf8.begin(), utf8.end(), isAscii)
        && QString::fromStdString(utf8).contains(m_text, Qt::CaseInsensitive);
}

bool TextPattern::equals(const std::string& utf8) const
{
    return QString::fromStdString(utf8).compare(m_text, Qt::CaseInsensitive) == 0;
}
