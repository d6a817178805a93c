// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "FieldStep.h"

#include <vector>

class KnField;
class KnFieldContainer;
class KnMField;

/// A text that a person pastes onto fields or nodes. Each of these functions is one step of the
/// undo stack, writes what fits and gives a message about what doesn't; empty if everything did.

/// Onto the chosen fields, all of which take the same value: that of the only line, or the text as
/// a whole. Several lines with names go to the fields of the nodes as below. `named` tells that the
/// lines have names; otherwise that is found out.
QString pasteOntoFields(const std::vector<KnFieldContainer*>& nodes,
    const std::vector<KnField*>& chosen, const QString& text, bool named);
/// Each line onto the field of its name, in all of the nodes.
QString pasteOntoNodes(const std::vector<KnFieldContainer*>& nodes, const QString& text);
/// The text's rows into an array; see FieldStep::setRows. `named` as above.
QString pasteRows(KnMField& array, int start, FieldStep::Rows how, const QString& text, bool named);
