// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnReadError.h"

#include <QString>

/// Takes the kernel's read errors over while it lives and keeps the text of the last one, so that
/// a refused text is reported by who set it, and once.
class ReadErrorCapture {
public:
    ReadErrorCapture();
    ReadErrorCapture(const ReadErrorCapture&) = delete;
    ReadErrorCapture& operator=(const ReadErrorCapture&) = delete;
    /// Gives the former handler back.
    ~ReadErrorCapture();

    const QString& text() const { return m_text; }

private:
    static void keepText(const KnError* error, void* data);

    KnErrorCallback m_formerCallback;
    void* m_formerData;
    QString m_text;
};
