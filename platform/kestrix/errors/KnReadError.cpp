// SPDX-License-Identifier: BSD-3-Clause
#include "KnReadError.h"

#include "KnField.h"
#include "KnFieldContainer.h"
#include "KnReadErrorCapture.h"

#include <algorithm>

namespace {

constexpr std::size_t maxExcerpt = 24; // characters

bool startsCharacter(char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }

/// `Material "skin", field diffuseColor (MFColor)`, or the type alone for a field of no node.
std::string describe(const KnField& field)
{
    const std::string type = field.getObjectType().getName().getString().toUtf8();
    const KnFieldContainer* node = field.getContainer();
    const KnFieldData* data = node ? node->getContainerFieldData() : nullptr;
    const int index = data ? data->getIndex(node, &field) : -1;
    if (index < 0)
        return "Field of type " + type;
    std::string text = node->getObjectType().getName().getString().toUtf8();
    if (!node->getName().isEmpty())
        text += " \"" + node->getName().getString().toUtf8() + '"';
    return text + ", field " + data->getName(index).getString().toUtf8() + " (" + type + ')';
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

KN_ERROR_SOURCE(KnReadError, KnError)

void KnReadError::post(const KbString& text)
{
    if (!KnReadErrorCapture::keep(text))
        handler().call(KnReadError(text));
}

void KnReadError::postRefusal(const KnField& field, int row, std::string_view text,
    std::size_t offset, std::string_view expected)
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
    post(KbString(std::move(message)));
}
