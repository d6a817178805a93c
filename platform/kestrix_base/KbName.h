// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KbString.h"

/// An interned text: copies and comparisons cost a pointer. The text lives as long as the process.
class KbName {
public:
    /// The empty name.
    KbName();
    KbName(const char* utf8); // NOLINT(google-explicit-constructor)
    explicit KbName(const KbString& text);

    const KbString& getString() const noexcept { return *m_text; }
    bool isEmpty() const noexcept { return m_text->isEmpty(); }

    friend bool operator==(const KbName& a, const KbName& b) noexcept
    {
        return a.m_text == b.m_text;
    }

private:
    const KbString* m_text; // owned by the table of names, never null
};
