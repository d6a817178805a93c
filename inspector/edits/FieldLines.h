// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KbString.h"

#include <QString>

#include <vector>

class KnField;
class KnFieldContainer;

/// A field and its value on a line of text: `intensity 0.65`. The value is in the kernel's form,
/// which holds no line breaks. Both are parts of a text that outlives this.
struct FieldLine {
    QStringView name;
    QStringView value;
};

/// A line for each of these fields.
QString fieldLines(const std::vector<KnField*>& fields);
/// The reverse; empty lines are left out. A line of one word has an empty value.
std::vector<FieldLine> readFieldLines(const QString& text);
/// Whether each line begins with the name of a field of this node, and goes on.
bool areFieldLines(const std::vector<FieldLine>& lines, KnFieldContainer& node);

/// All fields of a node.
std::vector<KnField*> fieldsOf(KnFieldContainer& node);
/// Null if the node has none of that name. Unlike a KbName, the name of no field isn't kept.
KnField* fieldNamed(KnFieldContainer& node, QStringView name);

/// What somebody else's text is as the text of an array: each line is a row, and so is each cell of
/// a line if a row is one number or text. A text in brackets is one already.
KbString arrayText(const KnField& array, const QString& text);
