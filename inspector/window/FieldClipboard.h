// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "FieldStep.h"

#include <vector>

class KnField;
class KnFieldContainer;
class KnMField;

/// Fields on the clipboard: a text with a line for each, such as `intensity 0.65`.

void copyFields(const std::vector<KnField*>& fields);
void copyAllFields(KnFieldContainer& node);

bool canPasteFields();
/// Pastes onto the chosen fields of these nodes, or, if none is chosen or the clipboard holds
/// several fields, onto the fields of the nodes that bear their names. One step of the undo stack;
/// gives a message on what didn't fit, empty if everything did.
QString pasteFields(
    const std::vector<KnFieldContainer*>& nodes, const std::vector<KnField*>& chosen = {});
/// Pastes rows, such as those of a spreadsheet, into an array; see FieldStep::setRows.
QString pasteFieldRows(KnMField& array, int start, FieldStep::Rows how);
