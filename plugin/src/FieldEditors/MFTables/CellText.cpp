// SPDX-License-Identifier: BSD-3-Clause
#include "CellText.h"

namespace {

// Beyond this length, in code units, a text is first judged by its beginning.
constexpr qsizetype longText = 1024;

/// How many code units the character at `at` has.
qsizetype characterLength(const QString& text, qsizetype at)
{
    const bool isPair
        = text.at(at).isHighSurrogate() && at + 1 < text.size() && text.at(at + 1).isLowSurrogate();
    return isPair ? 2 : 1;
}

bool isTooLong(const QString& text, int available, const TextAdvance& advance)
{
    // Glyphs next to a cut may change their width; the factor leaves ample room for that.
    if (text.size() > longText && advance(text.left(longText)) > 2 * available)
        return true;
    return advance(text) > available;
}

} // namespace

QString cellText(const QString& text, int available, const TextAdvance& advance)
{
    if (!isTooLong(text, available, advance))
        return text;

    const QString dots = QStringLiteral("...");
    // While the text is measured, the dots that will end it stand in front of it.
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
