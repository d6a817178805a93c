// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnError.h"

/// A misuse of the kernel, or a remark for the developer of a host.
class KnDebugError : public KnError {
    KN_ERROR(KnDebugError)
    enum Severity { Error = 0, Warning = 1, Info = 2 };

    KnDebugError(int severity, const KbString& text)
        : KnError(text)
        , m_severity(severity)
    {
    }

    /// 0 for an error, 1 for a warning, 2 for information.
    int getSeverity() const { return m_severity; }

    /// Makes the error and gives it to the handler of this class, on the calling thread.
    static void post(int severity, const KbString& text);

private:
    int m_severity;
};
