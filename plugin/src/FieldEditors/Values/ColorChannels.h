// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QColor>

/// The byte that displays a channel of nominal range 0 to 1: 255 times the channel, cut towards
/// zero; -1 if that is outside 0 to 255 or not a number.
int channelByte(float channel);

/// The colour of 3 channels, opaque, or of 4, alpha last. It isn't valid if a channel has no byte.
QColor channelColor(const float* channels, int count);

/// Stores the channels of a colour: red, green, blue and, for a `count` of 4, alpha.
void colorChannels(const QColor& color, float* channels, int count);
