// SPDX-License-Identifier: BSD-3-Clause
#include "CrvJsonTree.h"

#include "CrvJsonParser.h"

#include <QByteArrayView>

#include <algorithm>
#include <utility>

bool CrvJsonTree::parse(QByteArray json)
{
    m_json = std::move(json);
    m_marks.clear();
    return CrvJsonParser(*this).run();
}

CrvJsonValue CrvJsonTree::root() const { return { this, 0 }; }

bool CrvJsonValue::isNumber(double number) const
{
    if (!is(Kind::Other))
        return false;
    bool isNumber = false;
    const std::string_view text = bytes();
    return QByteArrayView(text.data(), static_cast<qsizetype>(text.size())).toDouble(&isNumber)
        == number
        && isNumber;
}

KbString CrvJsonValue::toKbString() const
{
    if (is(Kind::String))
        return KbString(bytes());
    const std::u16string text = unescaped();
    return KbString::fromUtf16(text.data(), static_cast<std::ptrdiff_t>(text.size()));
}

QString CrvJsonValue::toQString() const
{
    if (!is(Kind::String))
        return QString::fromStdU16String(unescaped());
    const std::string_view text = bytes();
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

bool CrvJsonValue::equals(QLatin1String text) const
{
    const std::string_view ascii(text.data(), static_cast<std::size_t>(text.size()));
    if (is(Kind::EscapedString))
        return toKbString().toUtf8() == ascii;
    return is(Kind::String) && bytes() == ascii;
}

CrvJsonValue CrvJsonValue::member(QLatin1String name) const
{
    CrvJsonValue found;
    if (!isObject())
        return found;
    const Iterator last = end();
    for (Iterator it = begin(); it != last; ++it) {
        if (it.name().equals(name))
            found = it.value();
    }
    return found;
}

CrvJsonValue::Iterator CrvJsonValue::begin() const
{
    Iterator it;
    if (!isObject() && !isArray())
        return it;
    it.m_tree = m_tree;
    it.m_index = m_index + 1;
    it.m_named = isObject();
    return it;
}

CrvJsonValue::Iterator CrvJsonValue::end() const
{
    Iterator it;
    if (isObject() || isArray())
        it.m_index = mark().next;
    return it;
}

CrvJsonValue::Iterator& CrvJsonValue::Iterator::operator++()
{
    m_index = m_tree->m_marks[m_index + (m_named ? 1 : 0)].next;
    return *this;
}

/// A half of a surrogate pair stays what it is.
std::u16string CrvJsonValue::unescaped() const
{
    if (!is(Kind::EscapedString))
        return {};
    const std::string_view text = bytes();
    std::u16string units;
    units.reserve(text.size());
    for (std::size_t i = 0; i < text.size();) {
        const std::size_t backslash = std::min(text.find('\\', i), text.size());
        if (backslash > i)
            units += KbString(text.substr(i, backslash - i)).toUtf16();
        if (backslash == text.size())
            break;
        const char escaped = text[backslash + 1];
        i = backslash + 2;
        switch (escaped) {
        case 'b':
            units += u'\b';
            break;
        case 'f':
            units += u'\f';
            break;
        case 'n':
            units += u'\n';
            break;
        case 'r':
            units += u'\r';
            break;
        case 't':
            units += u'\t';
            break;
        case 'u':
            units
                += static_cast<char16_t>(QByteArrayView(text.data() + i, 4).toUShort(nullptr, 16));
            i += 4;
            break;
        default:
            units += static_cast<unsigned char>(escaped); // as in Latin-1
        }
    }
    return units;
}
