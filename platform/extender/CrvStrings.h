// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KbName.h"

#include <QString>

// The way between the kernel's texts and Qt's. It goes by UTF-16 code units, so embedded zeros and
// lone surrogates survive it in both directions.

/// Kernel text as Qt text. A null string gives an empty text.
inline QString toQString(const KbString& text) { return QString::fromStdU16String(text.toUtf16()); }
inline QString toQString(const KbName& name) { return toQString(name.getString()); }

/// Qt text as kernel text. It is never null, not even for a null QString.
inline KbString toKbString(const QString& text)
{
    // QString::utf16 would make a null text an empty one, in place.
    return KbString::fromUtf16(QStringView(text).utf16(), text.size());
}
