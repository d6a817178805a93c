// SPDX-License-Identifier: BSD-3-Clause
#include "Rasterizer.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr float largestDot = 64.0F;

/// The first pixel whose middle isn't before `edge`, kept between 0 and `count`; 0 for what is no
/// number. Rounds up by hand, since std::ceil is a call on a plain x86-64.
int firstPixel(float edge, int count)
{
    const float kept = edge > 0.5F ? std::min(edge - 0.5F, static_cast<float>(count)) : 0.0F;
    const int whole = static_cast<int>(kept);
    return static_cast<float>(whole) < kept ? whole + 1 : whole;
}

/// The side of a triangle from its upper end to its lower one. Triangles that share a side get the
/// same numbers for it, and so meet without gaps.
struct Side {
    Side(const Rasterizer::Vertex& from, const Rasterizer::Vertex& to)
        : start(from)
        , slope((to.x - from.x) / (to.y - from.y))
    {
    }
    float xAt(float y) const { return start.x + (y - start.y) * slope; }

    Rasterizer::Vertex start;
    float slope; // not finite for a level side, which no row asks for
};

int mixed(int over, int under, int alpha) { return (over * alpha + under * (255 - alpha)) / 255; }

QRgb blended(QRgb over, QRgb under)
{
    const int alpha = qAlpha(over);
    return qRgb(mixed(qRed(over), qRed(under), alpha), mixed(qGreen(over), qGreen(under), alpha),
        mixed(qBlue(over), qBlue(under), alpha));
}

} // namespace

void Rasterizer::start(const QImage& background)
{
    m_image = background;
    m_width = m_image.width();
    m_height = m_image.height();
    const auto count = static_cast<std::size_t>(m_width) * static_cast<std::size_t>(m_height);
    m_nearness.assign(count, 0.0F);
    m_marks.assign(count, noMark);
    m_pixels = reinterpret_cast<QRgb*>(m_image.bits());
}

void Rasterizer::fillTriangle(Vertex a, Vertex b, Vertex c, QRgb color, int mark)
{
    if (a.y > b.y)
        std::swap(a, b);
    if (b.y > c.y)
        std::swap(b, c);
    if (a.y > b.y)
        std::swap(a, b);
    const float area = (b.x - a.x) * (c.y - a.y) - (c.x - a.x) * (b.y - a.y);
    if (area == 0.0F)
        return;
    const float toB = b.nearness - a.nearness;
    const float toC = c.nearness - a.nearness;
    const float alongX = (toB * (c.y - a.y) - toC * (b.y - a.y)) / area;
    const float alongY = (toC * (b.x - a.x) - toB * (c.x - a.x)) / area;

    const Side whole(a, c);
    const Side upper(a, b);
    const Side lower(b, c);
    const int bottom = firstPixel(c.y, m_height);
    for (int y = firstPixel(a.y, m_height); y < bottom; ++y) {
        const float middle = static_cast<float>(y) + 0.5F;
        const float x1 = whole.xAt(middle);
        const float x2 = middle < b.y ? upper.xAt(middle) : lower.xAt(middle);
        const int first = firstPixel(std::min(x1, x2), m_width);
        const int last = firstPixel(std::max(x1, x2), m_width);
        const float nearness = a.nearness + (static_cast<float>(first) + 0.5F - a.x) * alongX
            + (middle - a.y) * alongY;
        fillSpan(y, first, last, nearness, alongX, color, mark);
    }
}

void Rasterizer::fillSpan(
    int y, int first, int last, float nearness, float step, QRgb color, int mark)
{
    const auto row = static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width);
    float* const depths = m_nearness.data() + row;
    int* const marks = m_marks.data() + row;
    QRgb* const pixels = m_pixels + row;
    const bool isOpaque = qAlpha(color) == 255;
    for (int x = first; x < last; ++x, nearness += step) {
        if (nearness <= depths[x])
            continue;
        depths[x] = nearness;
        marks[x] = mark;
        pixels[x] = isOpaque ? color : blended(color, pixels[x]);
    }
}

void Rasterizer::drawLine(const Vertex& from, const Vertex& to, QRgb color, float width, int mark)
{
    // A step is a pixel in the direction in which the line is longer.
    const float length = std::max(std::abs(to.x - from.x), std::abs(to.y - from.y));
    const int steps = std::max(1, static_cast<int>(std::min(length, 1e5F)));
    for (int i = 0; i <= steps; ++i) {
        const float t = static_cast<float>(i) / static_cast<float>(steps);
        const Vertex at { from.x + (to.x - from.x) * t, from.y + (to.y - from.y) * t,
            from.nearness + (to.nearness - from.nearness) * t };
        drawDot(at, color, width, mark);
    }
}

void Rasterizer::drawDot(const Vertex& at, QRgb color, float size, int mark)
{
    const float half = size > 1.0F ? std::min(size, largestDot) / 2.0F : 0.5F;
    const int first = firstPixel(at.x - half, m_width);
    const int last = firstPixel(at.x + half, m_width);
    const int bottom = firstPixel(at.y + half, m_height);
    for (int y = firstPixel(at.y - half, m_height); y < bottom; ++y)
        fillSpan(y, first, last, at.nearness, 0.0F, color, mark);
}

int Rasterizer::markAt(int x, int y) const
{
    if (x < 0 || y < 0 || x >= m_width || y >= m_height)
        return noMark;
    return m_marks[static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width)
        + static_cast<std::size_t>(x)];
}

void Rasterizer::outline(const std::vector<bool>& isInside, QRgb color)
{
    const auto inside = [&](int x, int y) {
        const int mark = markAt(x, y);
        return mark != noMark && isInside[static_cast<std::size_t>(mark)];
    };
    for (int y = 0; y < m_height; ++y) {
        QRgb* const pixels = m_pixels + static_cast<std::ptrdiff_t>(y) * m_width;
        for (int x = 0; x < m_width; ++x) {
            const bool own = inside(x, y);
            // One pixel on each side of the edge.
            if (inside(x - 1, y) != own || inside(x + 1, y) != own || inside(x, y - 1) != own
                || inside(x, y + 1) != own)
                pixels[x] = color;
        }
    }
}
