// SPDX-License-Identifier: BSD-3-Clause
#include "KnReadError.h"

#include "KnReadErrorCapture.h"

KN_ERROR_SOURCE(KnReadError, KnError)

void KnReadError::post(const KbString& text)
{
    if (!KnReadErrorCapture::keep(text))
        handler().call(KnReadError(text));
}
