// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QImage>

#include <vector>

/// Fills triangles, lines and dots into an image, the nearest in front, and remembers for each
/// pixel what it shows. Knows nothing of scenes and cameras.
class Rasterizer {
public:
    /// In pixels, with y down; the middle of the first pixel is (0.5, 0.5).
    struct Vertex {
        float x;
        float y;
        float nearness; // 1 by the distance from the camera
    };

    static constexpr int noMark = -1;

    /// Starts a picture on a copy of `background`, an RGB32 image.
    void start(const QImage& background);

    /// Colours aren't premultiplied. One that isn't opaque mixes with what is behind it, so that
    /// has to be drawn before. A mark is what `markAt` gives for the pixels.
    void fillTriangle(Vertex a, Vertex b, Vertex c, QRgb color, int mark);
    /// The width is in pixels.
    void drawLine(const Vertex& from, const Vertex& to, QRgb color, float width, int mark);
    /// A square; the size is in pixels.
    void drawDot(const Vertex& at, QRgb color, float size, int mark);

    const QImage& image() const { return m_image; }
    /// `noMark` for the background, and outside of the image.
    int markAt(int x, int y) const;
    /// Draws a line of two pixels, in the colour, along the edge of what `isInside`, indexed by
    /// mark, says yes to.
    void outline(const std::vector<bool>& isInside, QRgb color);

private:
    void fillSpan(int y, int first, int last, float nearness, float step, QRgb color, int mark);

    QImage m_image;
    QRgb* m_pixels = nullptr; // those of the image, row after row; RGB32 needs no padding
    int m_width = 0;
    int m_height = 0;
    std::vector<float> m_nearness; // of each pixel; 0 for the background
    std::vector<int> m_marks;
};
