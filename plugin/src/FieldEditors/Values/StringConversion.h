// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KbString.h"

#include <QString>

/// Kernel text as Qt text, by UTF-16, so that nothing that Unicode holds is lost.
inline QString toQString(const KbString& text) { return QString::fromStdU16String(text.toUtf16()); }

/// Qt text as kernel text, by UTF-16. It is never null.
inline KbString toKbString(const QString& text)
{
    return KbString::fromUtf16(
        reinterpret_cast<const char16_t*>(text.utf16()), static_cast<std::ptrdiff_t>(text.size()));
}
