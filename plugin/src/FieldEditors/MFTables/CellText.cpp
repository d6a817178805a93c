// SPDX-License-Identifier: BSD-3-Clause
#include "CellText.h"

namespace {

// Beyond this length, in code units, a text is first judged by its beginning.
constexpr qsizetype LongText = 1024;

/// How many code units the character at `at` has.
qsizetype characterLength(const QString& text, qsizetype at)
{
    const bool isPair
        = text.at(at).isHighSurrogate() && at + 1 < text.size() && text.at(at + 1).isLowSurrogate();
    return isPair ? 2 : 1;
}

bool isTooLong(const QString& text, int available, const TextAdvance& advance)
{
    // The factor leaves room for what the cut does to the shapes next to it.
    if (text.size() > LongText && advance(text.left(LongText)) > 2 * available)
        return true;
    return advance(text) > available;
}

} // namespace

QString cellText(const QString& text, int available, const TextAdvance& advance)
{
    if (!isTooLong(text, available, advance))
        return text;

    const QString dots = QStringLiteral("...");
    // The dots stand in front while the text is measured, as a place holder for those behind it.
    QString shown = dots;
    for (qsizetype at = 0; at < text.size();) {
        const qsizetype length = characterLength(text, at);
        const QString longer = shown + text.mid(at, length);
        if (advance(longer) >= available)
            break;
        shown = longer;
        at += length;
    }
    shown.remove(0, dots.size());
    if (shown.isEmpty() && !text.isEmpty())
        shown = text.left(characterLength(text, 0));
    return shown + dots;
}
