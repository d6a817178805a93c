// SPDX-License-Identifier: BSD-3-Clause
#include "PropertyPicture.h"

#include "KnSFImage.h"

#include <QImage>

#include <algorithm>
#include <cstring>
#include <limits>
#include <vector>

namespace {

enum Components { Grey = 1, GreyAlpha = 2, Rgb = 3, Rgba = 4 };

int componentsOf(const QImage& picture)
{
    if (picture.hasAlphaChannel())
        return Rgba;
    return picture.isGrayscale() ? Grey : Rgb;
}

QImage::Format formatOf(int components)
{
    switch (components) {
    case Grey:
        return QImage::Format_Grayscale8;
    case Rgb:
        return QImage::Format_RGB888;
    default:
        return QImage::Format_RGBA8888;
    }
}

} // namespace

QImage plainPicture(const QImage& picture)
{
    constexpr int maxSide = std::numeric_limits<std::int16_t>::max();
    if (picture.isNull() || picture.width() > maxSide || picture.height() > maxSide)
        return QImage();
    return picture.convertToFormat(formatOf(componentsOf(picture)));
}

void writePicture(KnSFImage& field, const QImage& picture)
{
    const QImage plain = plainPicture(picture);
    if (plain.isNull()) {
        field.setValue(KbVec2s(0, 0), 0, nullptr);
        return;
    }
    const int components = componentsOf(picture);
    const auto lineLength
        = static_cast<std::size_t>(plain.width()) * static_cast<std::size_t>(components);
    std::vector<unsigned char> bytes(lineLength * static_cast<std::size_t>(plain.height()));
    auto line = bytes.begin();
    for (int y = plain.height() - 1; y >= 0; --y)
        line = std::copy_n(plain.constScanLine(y), lineLength, line);
    field.setValue(KbVec2s(plain.width(), plain.height()), components, bytes.data());
}

QImage readPicture(const KnSFImage& field)
{
    KbVec2s size;
    int components = 0;
    const unsigned char* bytes = field.getValue(size, components);
    if (!bytes)
        return QImage();
    QImage picture(size[0], size[1], formatOf(components));
    const bool direct = components == Grey || components == Rgb || components == Rgba;
    for (int y = picture.height() - 1; y >= 0; --y) {
        uchar* const line = picture.scanLine(y);
        const int length = picture.width() * components;
        if (direct) {
            std::memcpy(line, bytes, static_cast<std::size_t>(length));
        } else {
            for (int x = 0; x < picture.width(); ++x) {
                const unsigned char* const pixel = bytes + x * components;
                const bool isGrey = components == GreyAlpha;
                const unsigned char rgba[] = { pixel[0], pixel[isGrey ? 0 : 1],
                    pixel[isGrey ? 0 : 2], pixel[isGrey ? 1 : 3] };
                std::copy_n(rgba, Rgba, line + x * Rgba);
            }
        }
        bytes += length;
    }
    return picture;
}
