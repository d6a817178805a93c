// SPDX-License-Identifier: BSD-3-Clause
#include "FieldTyping.h"

#include "CrvStrings.h"
#include "KnMFields.h"
#include "KnSFImage.h"
#include "KnSFields.h"

#include <algorithm>

namespace {

/// The text of a field that holds one.
QString plainText(const KnField& field)
{
    if (field.isOfType(KnSFName::getClassTypeId()))
        return toQString(static_cast<const KnSFName&>(field).getValue());
    return toQString(static_cast<const KnSFString&>(field).getValue());
}

bool fitsPlainly(const QString& text)
{
    return std::all_of(text.begin(), text.end(),
        [](QChar character) { return character.isPrint() || character.isSurrogate(); });
}

} // namespace

bool isText(const KnField& field)
{
    return field.isOfType(KnSFString::getClassTypeId())
        || field.isOfType(KnSFName::getClassTypeId());
}

bool isTextArray(const KnField& field)
{
    return field.isOfType(KnMFString::getClassTypeId())
        || field.isOfType(KnMFName::getClassTypeId());
}

KbString quoted(const QString& text)
{
    KnSFString writer;
    writer.setValue(toKbString(text));
    KbString result;
    writer.get(result);
    return result;
}

bool fitsLine(const KnField& field)
{
    return field.isOfType(KnSField::getClassTypeId())
        && !field.isOfType(KnSFImage::getClassTypeId());
}

QString typedText(const KnField& field)
{
    if (isText(field)) {
        const QString text = plainText(field);
        if (fitsPlainly(text))
            return text;
    }
    KbString text;
    field.get(text);
    return toQString(text);
}

KbString fromTyped(const KnField& field, const QString& text)
{
    const bool plain = isText(field) && fitsPlainly(plainText(field));
    return plain ? quoted(text) : toKbString(text);
}
