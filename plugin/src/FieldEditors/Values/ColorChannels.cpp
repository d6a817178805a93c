// SPDX-License-Identifier: BSD-3-Clause
#include "ColorChannels.h"

int channelByte(float channel)
{
    const float scaled = channel * 255.0F;
    return scaled > -1.0F && scaled < 256.0F ? static_cast<int>(scaled) : -1;
}

QColor channelColor(const float* channels, int count)
{
    const int alpha = count > 3 ? channelByte(channels[3]) : 255;
    return { channelByte(channels[0]), channelByte(channels[1]), channelByte(channels[2]), alpha };
}

void colorChannels(const QColor& color, float* channels, int count)
{
    const int bytes[] = { color.red(), color.green(), color.blue(), color.alpha() };
    for (int i = 0; i < count; ++i)
        channels[i] = static_cast<float>(bytes[i]) / 255.0F;
}
