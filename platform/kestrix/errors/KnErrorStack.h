// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnError.h"

#include <vector>

/// Several texts that belong to one failure: what went wrong first, then what failed because of it.
/// The debug string has a line for each.
class KnErrorStack : public KnError {
    KN_ERROR(KnErrorStack)
    explicit KnErrorStack(const std::vector<KbString>& texts);

    /// Makes the error and gives it to the handler of this class, on the calling thread.
    static void post(const std::vector<KbString>& texts);
};
