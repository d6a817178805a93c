// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnReadError.h"
#include "KnTextReader.h"

#include <utility>

/// Takes one value out of a text that must hold nothing else; `""` gives the default value. `read`
/// is called with the reader and the fresh value. False, after a KnReadError in the name of the
/// field, when the text is refused. `row` is -1 for a field of one value.
template <class Value, class Read>
bool knReadWhole(const KnField& field, int row, const KbString& text, Value& value, Read read)
{
    KnTextReader reader(text.toUtf8());
    Value fresh {};
    if ((reader.acceptDefault() || read(reader, fresh)) && reader.expectEnd()) {
        value = std::move(fresh);
        return true;
    }
    KnReadError::postRefusal(field, row, text.toUtf8(), reader.failureOffset(), reader.expected());
    return false;
}
