// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QColor>

/// The byte that displays a channel of nominal range 0 to 1: 255 times the channel, cut towards
/// zero; -1 where that lies outside 0 to 255 or is no number.
int channelByte(float channel);

/// The colour that displays 3 channels, opaque, or 4, alpha last. It isn't valid when a channel has
/// no byte.
QColor channelColor(const float* channels, int count);

/// The channels of a colour, red, green, blue and, for a `count` of 4, alpha.
void colorChannels(const QColor& color, float* channels, int count);
