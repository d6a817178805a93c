// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnError.h"

#include <string_view>

class KnField;

/// A text that couldn't be read.
class KnReadError : public KnError {
    KN_ERROR(KnReadError)
    using KnError::KnError;

    /// Makes the error and gives it to the handler of this class, on the calling thread; or to the
    /// KnReadErrorCapture of this thread, if there is one.
    static void post(const KbString& text);
    /// The same for a text that a field refused: the message names the field by node and field
    /// name, the row (counted from 0; -1 for a field of one value), the place in the text (in
    /// characters, counted from 0), what was expected and what stands there. `offset` counts bytes.
    static void postRefusal(const KnField& field, int row, std::string_view text,
        std::size_t offset, std::string_view expected);
};
