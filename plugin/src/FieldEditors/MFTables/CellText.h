// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

#include <functional>

/// How wide a text is when it is drawn in one line, in pixels.
using TextAdvance = std::function<int(const QString&)>;

/// What a cell of `available` pixels shows of a text: all of it where it fits, else its beginning
/// and three dots. A cell too narrow even for that shows the first character and the dots. A
/// character is a code point: none is ever cut in two. Of a very long text only the beginning is
/// looked at.
QString cellText(const QString& text, int available, const TextAdvance& advance);
