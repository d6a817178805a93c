// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnError.h"

/// An error that the graphics library reported.
class KnGLError : public KnError {
    KN_ERROR(KnGLError)
    /// `code` is what the graphics library's error query returned; `where` says what was being
    /// done.
    KnGLError(unsigned int code, const KbString& where);

    unsigned int getCode() const { return m_code; }

    /// Makes the error and gives it to the handler of this class, on the calling thread.
    static void post(unsigned int code, const KbString& where);

private:
    unsigned int m_code;
};
