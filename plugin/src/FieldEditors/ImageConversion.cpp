// SPDX-License-Identifier: BSD-3-Clause
#include "ImageConversion.h"

#include <cstring>

namespace {

// Each buffer is the picture's own, whose rows are padded to 32 bits, so that a packed row of any
// length fits.

QImage copiedRows(const unsigned char* bytes, int width, int height, int components)
{
    QImage image(width, height, components == 1 ? QImage::Format_Indexed8 : QImage::Format_RGB16);
    if (image.isNull())
        return image;
    const std::size_t rowBytes = std::size_t(width) * std::size_t(components);
    for (int y = 0; y < height; ++y)
        std::memcpy(image.scanLine(y), bytes + std::size_t(y) * rowBytes, rowBytes);
    return image;
}

/// 0xAARRGGBB in one word, which is blue, green, red, alpha in memory.
template <int components>
QRgb colorOf(const unsigned char* pixel)
{
    return qRgba(pixel[0], pixel[1], pixel[2], components == 4 ? pixel[3] : 255);
}

template <int components>
QImage flippedColors(const unsigned char* bytes, int width, int height)
{
    QImage image(width, height, QImage::Format_ARGB32);
    if (image.isNull())
        return image;
    for (int y = 0; y < height; ++y) {
        const unsigned char* source
            = bytes + std::size_t(y) * std::size_t(width) * std::size_t(components);
        auto* const row = reinterpret_cast<QRgb*>(image.scanLine(height - 1 - y));
        for (int x = 0; x < width; ++x, source += components)
            row[x] = colorOf<components>(source);
    }
    return image;
}

void setGreyTable(QImage& image)
{
    image.setColorCount(256);
    for (int i = 0; i < 256; ++i)
        image.setColor(i, qRgb(i, i, i));
}

} // namespace

QImage imageFromPixels(const unsigned char* bytes, int width, int height, int components)
{
    if (!bytes || width <= 0 || height <= 0)
        return {};
    switch (components) {
    case 1: {
        QImage image = copiedRows(bytes, width, height, 1);
        setGreyTable(image);
        return image;
    }
    case 2:
        return copiedRows(bytes, width, height, 2);
    case 3:
        return flippedColors<3>(bytes, width, height);
    case 4:
        return flippedColors<4>(bytes, width, height);
    default:
        return {};
    }
}
