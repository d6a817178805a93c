// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnError.h"

/// A text that couldn't be read.
class KnReadError : public KnError {
    KN_ERROR(KnReadError)
    using KnError::KnError;

    /// Makes the error and gives it to the handler of this class, on the calling thread; or to the
    /// KnReadErrorCapture of this thread, if there is one.
    static void post(const KbString& text);
};
