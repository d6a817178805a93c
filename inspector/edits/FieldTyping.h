// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KbString.h"

#include <QString>

class KnField;

/// How people write values: texts stand without quotes, anything else in the kernel's form.

/// Whether the field holds one text, or an array of texts.
bool isText(const KnField& field);
bool isTextArray(const KnField& field);
/// A text in quotes, with what is special in it escaped.
KbString quoted(const QString& text);

/// Whether a line of text is enough to edit the field.
bool fitsLine(const KnField& field);
/// What stands in that line. A text with line breaks or other signs that a line doesn't show is in
/// the kernel's form.
QString typedText(const KnField& field);
/// What a person has made of it, for the field to take.
KbString fromTyped(const KnField& field, const QString& text);
