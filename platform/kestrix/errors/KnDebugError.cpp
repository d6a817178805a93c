// SPDX-License-Identifier: BSD-3-Clause
#include "KnDebugError.h"

KN_ERROR_SOURCE(KnDebugError, KnError)

void KnDebugError::post(int severity, const KbString& text)
{
    handler().call(KnDebugError(severity, text));
}
