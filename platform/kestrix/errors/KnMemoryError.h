// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnError.h"

/// Memory that couldn't be allocated.
class KnMemoryError : public KnError {
    KN_ERROR(KnMemoryError)
    using KnError::KnError;

    /// Makes the error and gives it to the handler of this class, on the calling thread.
    static void post(const KbString& text);
};
