// SPDX-License-Identifier: BSD-3-Clause
#include "ImageConversion.h"

#include <QtEndian>

#include <cstring>
#include <type_traits>

namespace {

// The pixels are copied into the picture's own buffer. Its rows are padded to 32 bits, so packed
// rows of any length fit.

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

// A pixel is 0xAARRGGBB in one word, which is blue, green, red, alpha in memory.

void convertRow(const unsigned char* source, QRgb* row, int width, std::integral_constant<int, 3>)
{
    // One load for each pixel is twice as fast as three. It also reads a byte of the next pixel, so
    // the last pixel of a row is read byte by byte.
    for (int x = 0; x < width - 1; ++x, source += 3)
        row[x] = 0xff000000U | qFromBigEndian<quint32>(source) >> 8;
    row[width - 1] = qRgb(source[0], source[1], source[2]);
}

void convertRow(const unsigned char* source, QRgb* row, int width, std::integral_constant<int, 4>)
{
    for (int x = 0; x < width; ++x, source += 4)
        row[x] = qRgba(source[0], source[1], source[2], source[3]);
}

template <int Components>
QImage flippedColors(const unsigned char* bytes, int width, int height)
{
    QImage image(width, height, QImage::Format_ARGB32);
    if (image.isNull())
        return image;
    const std::size_t rowBytes = std::size_t(width) * std::size_t(Components);
    for (int y = 0; y < height; ++y) {
        convertRow(bytes + std::size_t(y) * rowBytes,
            reinterpret_cast<QRgb*>(image.scanLine(height - 1 - y)), width,
            std::integral_constant<int, Components> {});
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
        if (!image.isNull())
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
