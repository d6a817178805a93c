// SPDX-License-Identifier: BSD-3-Clause
#include "JsonText.h"

#include <array>
#include <cstdio>

namespace {

// Whether there is one half of a surrogate pair without the other.
bool isLoneSurrogate(QStringView text, qsizetype i)
{
    if (text[i].isHighSurrogate())
        return i + 1 == text.size() || !text[i + 1].isLowSurrogate();
    return text[i].isLowSurrogate() && (i == 0 || !text[i - 1].isHighSurrogate());
}

void appendEscape(QByteArray& json, char16_t unit)
{
    switch (unit) {
    case u'"':
        json.append("\\\"");
        return;
    case u'\\':
        json.append("\\\\");
        return;
    case u'\n':
        json.append("\\n");
        return;
    case u'\t':
        json.append("\\t");
        return;
    default:
        std::array<char, 8> escape {};
        std::snprintf(escape.data(), escape.size(), "\\u%04x", unsigned { unit });
        json.append(escape.data());
    }
}

} // namespace

void appendJsonString(QByteArray& json, QStringView text)
{
    json.append('"');
    qsizetype runStart = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i].unicode();
        if (unit >= 0x20 && unit != u'"' && unit != u'\\' && !isLoneSurrogate(text, i))
            continue;
        json.append(text.mid(runStart, i - runStart).toUtf8());
        appendEscape(json, unit);
        runStart = i + 1;
    }
    json.append(text.mid(runStart).toUtf8());
    json.append('"');
}
