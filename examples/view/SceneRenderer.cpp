// SPDX-License-Identifier: BSD-3-Clause
#include "SceneRenderer.h"

#include "OrbitCamera.h"

#include <algorithm>
#include <cmath>

namespace {

// An edge lies in the faces at its sides, and should win against them.
constexpr float lineLift = 1.002F;

int plus(int value, int more, float factor)
{
    return std::min(255, value + static_cast<int>(static_cast<float>(more) * factor));
}

} // namespace

void SceneRenderer::draw(
    const DrawList& list, const OrbitCamera& camera, const QImage& background, float scale)
{
    m_pixels.start(background);
    setCamera(camera, background.size());
    m_transparent.clear();
    for (const DrawList::Face& face : list.faces) {
        if (qAlpha(face.front) == 255)
            drawFace(face);
        else
            m_transparent.push_back({ &face, m_view.map(face.corners[0]).z() });
    }
    for (const DrawList::Segment& segment : list.segments)
        drawSegment(segment, scale);
    for (const DrawList::Dot& dot : list.dots) {
        if (const auto at = project(dot.at))
            m_pixels.drawDot(*at, dot.color, dot.size * scale, dot.place);
    }
    // From the back to the front, since each mixes with what is behind it.
    std::sort(m_transparent.begin(), m_transparent.end(),
        [](const Transparent& a, const Transparent& b) { return a.depth < b.depth; });
    for (const Transparent& transparent : m_transparent)
        drawFace(*transparent.face);
}

std::optional<Rasterizer::Vertex> SceneRenderer::project(const QVector3D& point) const
{
    const QVector3D seen = m_view.map(point);
    if (!m_frustum[0].holds(seen))
        return std::nullopt;
    return toPixels(seen);
}

void SceneRenderer::setCamera(const OrbitCamera& camera, const QSize& size)
{
    m_view = camera.view();
    m_eye = camera.position();
    m_middleX = static_cast<float>(size.width()) / 2.0F;
    m_middleY = static_cast<float>(size.height()) / 2.0F;
    const float aspect = m_middleX / m_middleY;
    const float high = camera.halfHeight(aspect);
    const float wide = high * aspect;
    m_pixelsPerSlope = m_middleY / high;
    m_frustum = { {
        { { 0.0F, 0.0F, -1.0F }, camera.nearDistance() },
        { { 1.0F, 0.0F, -wide }, 0.0F },
        { { -1.0F, 0.0F, -wide }, 0.0F },
        { { 0.0F, 1.0F, -high }, 0.0F },
        { { 0.0F, -1.0F, -high }, 0.0F },
    } };
}

bool SceneRenderer::isInView(const QVector3D& seen) const
{
    return std::all_of(m_frustum.begin(), m_frustum.end(),
        [&seen](const HalfSpace& half) { return half.holds(seen); });
}

void SceneRenderer::cutToView()
{
    for (const HalfSpace& half : m_frustum)
        m_polygon.cut(half);
}

Rasterizer::Vertex SceneRenderer::toPixels(const QVector3D& seen) const
{
    const float nearness = -1.0F / seen.z();
    const float pixels = m_pixelsPerSlope * nearness;
    return { m_middleX + seen.x() * pixels, m_middleY - seen.y() * pixels, nearness };
}

QRgb SceneRenderer::colorOf(const DrawList::Face& face) const
{
    // All triangles of a face begin at the same corner, and so get the same colour.
    const QVector3D toEye = m_eye - face.corners[0];
    const float slope = QVector3D::dotProduct(face.normal, toEye) / toEye.length();
    const QRgb lit = slope >= 0.0F ? face.front : face.back;
    const float head = std::abs(slope);
    return qRgba(plus(qRed(lit), qRed(face.head), head), plus(qGreen(lit), qGreen(face.head), head),
        plus(qBlue(lit), qBlue(face.head), head), qAlpha(face.front));
}

void SceneRenderer::drawFace(const DrawList::Face& face)
{
    m_polygon.assign(
        { m_view.map(face.corners[0]), m_view.map(face.corners[1]), m_view.map(face.corners[2]) });
    cutToView();
    const std::vector<QVector3D>& corners = m_polygon.corners();
    if (corners.size() < 3)
        return;
    const QRgb color = colorOf(face);
    const Rasterizer::Vertex first = toPixels(corners[0]);
    Rasterizer::Vertex previous = toPixels(corners[1]);
    for (std::size_t i = 2; i < corners.size(); ++i) {
        const Rasterizer::Vertex next = toPixels(corners[i]);
        m_pixels.fillTriangle(first, previous, next, color, face.place);
        previous = next;
    }
}

void SceneRenderer::drawSegment(const DrawList::Segment& segment, float scale)
{
    m_polygon.assign({ m_view.map(segment.ends[0]), m_view.map(segment.ends[1]) });
    cutToView();
    if (m_polygon.corners().size() != 2)
        return;
    Rasterizer::Vertex from = toPixels(m_polygon.corners()[0]);
    Rasterizer::Vertex to = toPixels(m_polygon.corners()[1]);
    from.nearness *= lineLift;
    to.nearness *= lineLift;
    m_pixels.drawLine(from, to, segment.color, segment.width * scale, segment.place);
}
