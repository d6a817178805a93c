// SPDX-License-Identifier: BSD-3-Clause
// The time that the pixels of an image field take to become a Qt picture, against a bare
// QImage::rgbSwapped().mirrored() of the same picture, run in turns.
//
// Usage: bench_image [turns]
#include "ImageConversion.h"

#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

/// Milliseconds.
template <class Work>
double measure(Work work)
{
    QElapsedTimer timer;
    timer.start();
    const QImage result = work();
    const double time = double(timer.nsecsElapsed()) / 1e6;
    if (result.isNull())
        std::abort();
    return time;
}

double median(std::vector<double>& times)
{
    const auto middle = times.begin() + std::ptrdiff_t(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
}

void compare(int size, int components, int turns)
{
    std::vector<unsigned char> bytes(
        std::size_t(size) * std::size_t(size) * std::size_t(components));
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<unsigned char>(i * 37);
    const QImage::Format format = components == 3 ? QImage::Format_RGB888 : QImage::Format_ARGB32;
    const QImage picture(bytes.data(), size, size, size * components, format);

    std::vector<double> ours;
    std::vector<double> bare;
    for (int turn = 0; turn < turns; ++turn) {
        ours.push_back(
            measure([&] { return imageFromPixels(bytes.data(), size, size, components); }));
        bare.push_back(measure([&] { return picture.rgbSwapped().mirrored(); }));
    }
    const double our = median(ours);
    const double their = median(bare);
    std::printf("%5d x %-5d %d components: %8.3f ms, bare %8.3f ms, ratio %.2f\n", size, size,
        components, our, their, our / their);
}

} // namespace

int main(int argc, char** argv)
{
    const int turns = argc > 1 ? std::max(1, std::atoi(argv[1])) : 25;
    for (const int components : { 3, 4 }) {
        for (const int size : { 256, 1024, 4096 })
            compare(size, components, turns);
    }
    return 0;
}
