// SPDX-License-Identifier: BSD-3-Clause
#include "KnMemoryError.h"

KN_ERROR_SOURCE(KnMemoryError, KnError)

void KnMemoryError::post(const KbString& text) { handler().call(KnMemoryError(text)); }
