// SPDX-License-Identifier: BSD-3-Clause
// The time that the pixels of an image field take to become a Qt picture, against a bare
// QImage::rgbSwapped().mirrored() of the same picture, run in turns.
//
// Usage: bench_image [turns]
#include "ImageConversion.h"
#include "Timing.h"

#include <QImage>

#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

void require(const QImage& picture)
{
    if (picture.isNull())
        std::abort();
}

void compare(int size, int components, int turns)
{
    std::vector<unsigned char> bytes(
        std::size_t(size) * std::size_t(size) * std::size_t(components));
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<unsigned char>(i * 37);
    const QImage::Format format = components == 3 ? QImage::Format_RGB888 : QImage::Format_ARGB32;
    const QImage picture(bytes.data(), size, size, size * components, format);

    const TimePair times = compareInTurns(
        turns, [&] { require(imageFromPixels(bytes.data(), size, size, components)); },
        [&] { require(picture.rgbSwapped().mirrored()); });
    std::printf("%5d x %-5d %d components: %8.3f ms, bare %8.3f ms, ratio %.2f\n", size, size,
        components, times.ours, times.rival, times.ours / times.rival);
}

} // namespace

int main(int argc, char** argv)
{
    const int turns = numberArgument(argc, argv, 1, 25);
    for (const int components : { 3, 4 }) {
        for (const int size : { 256, 1024, 4096 })
            compare(size, components, turns);
    }
    return 0;
}
