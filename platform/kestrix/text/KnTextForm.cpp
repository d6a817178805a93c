// SPDX-License-Identifier: BSD-3-Clause
#include "KnTextForm.h"

bool KnTextForm<bool>::read(KnTextReader& reader, bool& value)
{
    reader.skipBlanks();
    const char* const start = reader.position();
    std::string word(reader.takeWord());
    for (char& c : word)
        c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    value = word == "TRUE" || word == "1";
    if (value || word == "FALSE" || word == "0")
        return true;
    reader.setPosition(start);
    return reader.fail("TRUE or FALSE");
}

bool KnTextForm<KbTime>::read(KnTextReader& reader, KbTime& value)
{
    double seconds = 0;
    if (!reader.read(seconds))
        return false;
    value = KbTime(seconds);
    return true;
}

bool KnTextForm<KbString>::read(KnTextReader& reader, KbString& value)
{
    std::string text;
    if (!reader.readString(text))
        return false;
    value = KbString(std::move(text));
    return true;
}

bool KnTextForm<KbName>::read(KnTextReader& reader, KbName& value)
{
    KbString text;
    if (!KnTextForm<KbString>::read(reader, text))
        return false;
    value = KbName(text);
    return true;
}
