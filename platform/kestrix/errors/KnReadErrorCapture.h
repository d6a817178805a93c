// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KbString.h"

/// Keeps the read errors that its own thread posts while it lives, so that whoever sets a text can
/// report a refusal itself, and once. These errors don't reach the handler of the class; those of
/// other threads do, as always. Captures nest: the innermost one takes the error. Made and
/// destroyed on one thread, in the order of a stack.
class KnReadErrorCapture {
public:
    KnReadErrorCapture();
    KnReadErrorCapture(const KnReadErrorCapture&) = delete;
    KnReadErrorCapture& operator=(const KnReadErrorCapture&) = delete;
    ~KnReadErrorCapture();

    /// The text of the last error; empty if there was none.
    const KbString& getText() const { return m_text; }

private:
    friend class KnReadError;

    /// False if there is no capture on the calling thread.
    static bool keep(const KbString& text);

    KnReadErrorCapture* const m_outer; // null for the outermost one of the thread
    KbString m_text;
};
