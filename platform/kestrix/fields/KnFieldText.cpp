// SPDX-License-Identifier: BSD-3-Clause
#include "KnFieldText.h"

#include "KnField.h"
#include "KnFieldOwner.h"
#include "KnReadError.h"

#include <algorithm>

namespace {

constexpr std::size_t maxExcerpt = 24; // characters

bool startsCharacter(char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }

/// `Material "skin", field diffuseColor (MFColor)`, or the type alone for a field of no node.
std::string describe(const KnField& field)
{
    const std::string type = field.getObjectType().getName().getString().toUtf8();
    const KnFieldOwner* owner = field.getOwner();
    const std::string place = owner ? owner->describeField(field) : std::string();
    return place.empty() ? "Field of type " + type : place + " (" + type + ')';
}

/// What stands at the front of a text, cut short.
std::string excerpt(std::string_view text)
{
    if (text.empty())
        return "the text ends";
    std::size_t length = 0;
    for (std::size_t characters = 0; length < text.size(); ++length) {
        if (startsCharacter(text[length]) && ++characters > maxExcerpt)
            break;
    }
    std::string cut(text.substr(0, length));
    std::replace(cut.begin(), cut.end(), '\n', ' ');
    return "found: " + cut + (length < text.size() ? "..." : "");
}

} // namespace

void knPostRefusal(const KnField& field, int row, std::string_view text, std::size_t offset,
    std::string_view expected)
{
    const std::string_view before = text.substr(0, offset);
    std::string message = describe(field) + ": the text was refused";
    if (row >= 0)
        message += ", row " + std::to_string(row);
    message += ", character "
        + std::to_string(std::count_if(before.begin(), before.end(), startsCharacter));
    message += ": expected ";
    message += expected;
    message += ", " + excerpt(text.substr(offset));
    KnReadError::post(KbString(std::move(message)));
}

void knPostRefusal(const KnField& field, std::string_view reason)
{
    KnReadError::post(KbString(describe(field) + ": " + std::string(reason)));
}

bool knAcceptsText(const KnField& field)
{
    if (field.isReadOnly())
        knPostRefusal(field, "the field is read-only");
    return !field.isReadOnly();
}
