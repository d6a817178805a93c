// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KbString.h"
#include "KnTextReader.h"

#include <utility>

class KnField;

/// Posts a KnReadError for a text that a field refused. The message names the field by node and
/// field name, the row (counted from 0; -1 for a field of one value), the place in the text (in
/// characters, counted from 0), what was expected and what stands there. `offset` counts bytes.
void knPostRefusal(const KnField& field, int row, std::string_view text, std::size_t offset,
    std::string_view expected);

/// Posts a KnReadError that names the field by node and field name and says why it takes nothing.
void knPostRefusal(const KnField& field, std::string_view reason);

/// Whether the field takes texts at all. False, after a KnReadError, if it is read-only.
bool knAcceptsText(const KnField& field);

/// Takes one value out of a text that must hold nothing else; `""` gives the default value. `read`
/// is called with the reader and the fresh value. False, after a KnReadError in the name of the
/// field, when the text is refused. `row` is -1 for a field of one value.
template <class Value, class Read>
bool knReadWhole(const KnField& field, int row, const KbString& text, Value& value, Read read)
{
    if (!knAcceptsText(field))
        return false;
    KnTextReader reader(text.toUtf8());
    Value fresh {};
    if ((reader.acceptDefault() || read(reader, fresh)) && reader.expectEnd()) {
        value = std::move(fresh);
        return true;
    }
    knPostRefusal(field, row, text.toUtf8(), reader.failureOffset(), reader.expected());
    return false;
}
