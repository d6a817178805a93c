// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvStrings.h"

#include <QString>

class KnField;
class KnFieldContainer;
class KnType;
struct KnFieldInfo;

/// How the window words kernel objects. What these functions cost doesn't grow with an array.

QString typeName(const KnType& type);
/// For a tool tip, which would take a text with angle brackets for markup.
QString toolTipText(const QString& text);

/// The node's name, or the name of its type for a node without one.
QString nodeLabel(const KnFieldContainer& node);
/// The field's name in its node; empty for a field that stands alone.
QString fieldName(const KnField& field);

/// The sentence about a field, with its unit and range; empty if its class says nothing.
QString fieldMeaning(const KnFieldInfo& info);

/// All that a person should know of a field, line by line: what its class says, what the library
/// says that made the node, and whether it can be written.
QString fieldNote(const KnField& field);
/// The same of a node: its name or its type, and what the library says that made it.
QString nodeNote(const KnFieldContainer& node);

/// One line of at most about `maxLength` characters that says what the field holds: the first
/// values of an array and its length, the size of an image, the text of anything else.
QString fieldSummary(const KnField& field, int maxLength = 80);
