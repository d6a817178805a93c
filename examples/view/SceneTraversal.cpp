// SPDX-License-Identifier: BSD-3-Clause
#include "SceneTraversal.h"

#include "CrvStrings.h"
#include "KnClipPlane.h"
#include "KnClipPlanes.h"
#include "KnCoordinates.h"
#include "KnDirectionalLight.h"
#include "KnDrawStyle.h"
#include "KnGroup.h"
#include "KnIndexedFaceSet.h"
#include "KnMaterial.h"
#include "KnMatrixTransform.h"
#include "KnPointLight.h"
#include "KnText.h"
#include "KnTransform.h"
#include "KnViewpoint.h"
#include "NodeKind.h"
#include "NodeMatrix.h"

#include <algorithm>

namespace {

// A node below many shared groups stands in more places than anybody can draw.
constexpr std::size_t maxNodes = 1'000'000;
constexpr int maxDepth = 2000; // of groups in groups, which the stack has room for
// Points without a style of their own would be hard to see as single pixels.
constexpr float defaultDotSize = 2.0F;

enum Style { Filled = 0, Lines = 1, Dots = 2, Invisible = 3 }; // the numbers of KnDrawStyle

int styleOf(const KnDrawStyle* style) { return style ? valueOf(style->style, Filled) : Filled; }

float dotSizeOf(const KnDrawStyle* style)
{
    return style ? valueOf(style->pointSize, defaultDotSize) : defaultDotSize;
}

/// By Newell's method, which minds neither a dent nor three corners in a line. Zero for a face
/// without an area.
QVector3D normalOf(const std::vector<QVector3D>& outline)
{
    QVector3D sum;
    for (std::size_t i = 0; i < outline.size(); ++i)
        sum += QVector3D::crossProduct(
            outline[i] - outline[0], outline[(i + 1) % outline.size()] - outline[0]);
    const float length = sum.length();
    return length > 0.0F ? sum / length : QVector3D();
}

} // namespace

SceneTraversal::SceneTraversal() = default;

void SceneTraversal::walk(KnFieldContainer& root)
{
    m_state = State();
    visit(root, -1);
    m_lights.clear();
    m_clipPlanes.clear();
    for (const Points& points : m_points)
        addDots(points, -1);
    m_points.clear();
}

void SceneTraversal::visit(KnFieldContainer& node, int parent)
{
    if (m_nodes.size() >= maxNodes) {
        m_list.isCut = true;
        return;
    }
    m_nodes.push_back(&node);
    const NodeKind kind = kindOf(node);
    switch (kind) {
    case NodeKind::Group:
        visitGroup(static_cast<KnGroup&>(node), parent);
        break;
    case NodeKind::Transform:
        m_state.toWorld *= matrixOf(static_cast<KnTransform&>(node));
        addPlace(node, parent, kind, DrawList::Reach::Rest);
        break;
    case NodeKind::MatrixTransform:
        m_state.toWorld *= matrixOf(static_cast<KnMatrixTransform&>(node));
        addPlace(node, parent, kind, DrawList::Reach::Rest);
        break;
    case NodeKind::Material:
        m_state.material = &static_cast<KnMaterial&>(node);
        addPlace(node, parent, kind, DrawList::Reach::RestToNext);
        break;
    case NodeKind::Coordinates:
        m_state.points = static_cast<int>(m_points.size());
        m_points.push_back({ &static_cast<KnCoordinates&>(node), m_state, false });
        addPlace(node, parent, kind, DrawList::Reach::RestToNext);
        break;
    case NodeKind::IndexedFaceSet:
        addFaces(static_cast<KnIndexedFaceSet&>(node), parent);
        break;
    case NodeKind::Text:
        addLabel(static_cast<KnText&>(node), parent);
        break;
    case NodeKind::DrawStyle:
        m_state.style = &static_cast<KnDrawStyle&>(node);
        addPlace(node, parent, kind, DrawList::Reach::RestToNext);
        break;
    case NodeKind::DirectionalLight:
        addLight(static_cast<KnLight&>(node), false);
        break;
    case NodeKind::PointLight:
        addLight(static_cast<KnLight&>(node), true);
        break;
    case NodeKind::ClipPlane: {
        const auto& clip = static_cast<KnClipPlane&>(node);
        if (valueOf(clip.on, true) && !clip.plane.isIgnored())
            addClipPlane(clip.plane.getValue());
        break;
    }
    case NodeKind::ClipPlanes: {
        const auto& clip = static_cast<KnClipPlanes&>(node);
        for (int i = 0; valueOf(clip.on, true) && i < rowsOf(clip.plane); ++i)
            addClipPlane(clip.plane[i]);
        break;
    }
    case NodeKind::Viewpoint:
        addViewpoint(node);
        break;
    case NodeKind::NotDrawn:
        break;
    }
}

void SceneTraversal::visitGroup(KnGroup& group, int parent)
{
    if (!valueOf(group.visible, true))
        return;
    if (m_depth >= maxDepth) {
        m_list.isCut = true;
        return;
    }
    ++m_depth;
    const State state = m_state;
    const std::size_t lights = m_lights.size();
    const std::size_t clipPlanes = m_clipPlanes.size();
    const std::size_t points = m_points.size();
    const int place = addPlace(group, parent, NodeKind::Group);
    for (int i = 0; i < group.getNumChildren(); ++i)
        visit(*group.getChild(i), place);
    for (std::size_t i = points; i < m_points.size(); ++i)
        addDots(m_points[i], place);
    m_points.erase(m_points.begin() + std::ptrdiff_t(points), m_points.end());
    m_clipPlanes.resize(clipPlanes);
    m_lights.resize(lights);
    m_state = state;
    --m_depth;
}

int SceneTraversal::addPlace(
    KnFieldContainer& node, int parent, NodeKind kind, DrawList::Reach reach)
{
    m_list.places.push_back({ &node, parent, kind, reach });
    return static_cast<int>(m_list.places.size()) - 1;
}

bool SceneTraversal::isCutOff(const QVector3D& point) const
{
    return std::any_of(m_clipPlanes.begin(), m_clipPlanes.end(),
        [&point](const HalfSpace& half) { return !half.holds(point); });
}

void SceneTraversal::addLight(const KnLight& light, bool isPoint)
{
    if (!valueOf(light.on, true))
        return;
    const QVector3D color
        = toVector(valueOf(light.color, { 1.0F, 1.0F, 1.0F })) * valueOf(light.intensity, 1.0F);
    if (isPoint) {
        const auto& point = static_cast<const KnPointLight&>(light);
        const QVector3D at = toVector(valueOf(point.location, { 0.0F, 0.0F, 1.0F }));
        m_lights.push_back({ color, {}, m_state.toWorld.map(at),
            toVector(valueOf(point.attenuation, { 0.0F, 0.0F, 1.0F })) });
        return;
    }
    const auto& sun = static_cast<const KnDirectionalLight&>(light);
    const QVector3D direction = toVector(valueOf(sun.direction, { 0.0F, 0.0F, -1.0F }));
    const QVector3D inWorld = m_state.toWorld.mapVector(direction).normalized();
    if (!inWorld.isNull())
        m_lights.push_back({ color, inWorld, {}, {} });
}

void SceneTraversal::addClipPlane(const KbPlane& plane)
{
    m_clipPlanes.push_back(transformed(plane, m_state.toWorld));
}

void SceneTraversal::addViewpoint(const KnFieldContainer& node)
{
    if (m_list.viewpoint)
        return;
    const auto& viewpoint = static_cast<const KnViewpoint&>(node);
    const QVector3D at = toVector(valueOf(viewpoint.position, { 0.0F, 0.0F, 1.0F }));
    const QVector3D inWorld = m_state.toWorld.map(at);
    const QQuaternion own = toQuaternion(valueOf(viewpoint.orientation, {}));
    const QVector3D back = m_state.toWorld.mapVector(own.rotatedVector({ 0.0F, 0.0F, 1.0F }));
    const QVector3D up = m_state.toWorld.mapVector(own.rotatedVector({ 0.0F, 1.0F, 0.0F }));
    if (isDrawable(inWorld) && isDrawable(back) && isDrawable(up))
        m_list.viewpoint = { inWorld, QQuaternion::fromDirection(back, up),
            valueOf(viewpoint.heightAngle, 0.785398F) };
}

void SceneTraversal::addFaces(KnIndexedFaceSet& node, int parent)
{
    if (m_state.points < 0)
        return;
    Points& points = m_points[std::size_t(m_state.points)];
    points.isUsed = true;
    m_corners.clear();
    for (int i = 0; i < rowsOf(points.node->point); ++i)
        m_corners.push_back(m_state.toWorld.map(toVector(points.node->point[i])));

    const int place = addPlace(node, parent, NodeKind::IndexedFaceSet);
    const int indexCount = rowsOf(node.coordIndex);
    int faceNumber = 0;
    bool isWhole = true;
    m_outline.clear();
    for (int i = 0; i <= indexCount; ++i) {
        const int index = i < indexCount ? node.coordIndex[i] : -1;
        if (index >= 0) {
            isWhole = isWhole && std::size_t(index) < m_corners.size()
                && isDrawable(m_corners[std::size_t(index)]);
            if (isWhole)
                m_outline.push_back(m_corners[std::size_t(index)]);
            continue;
        }
        if (isWhole && m_outline.size() >= 3) {
            const Surface surface = surfaceOf(m_state.material, faceNumber);
            const bool isPacked = faceNumber < rowsOf(node.packedColor);
            addFace(
                isPacked ? packedSurface(surface, node.packedColor[faceNumber]) : surface, place);
        }
        // A line of nothing but its end is no face.
        faceNumber += m_outline.empty() && isWhole ? 0 : 1;
        isWhole = true;
        m_outline.clear();
    }
}

void SceneTraversal::addFace(const Surface& surface, int place)
{
    switch (styleOf(m_state.style)) {
    case Lines:
        for (std::size_t i = 0; i < m_outline.size(); ++i)
            addSegment(
                m_outline[i], m_outline[(i + 1) % m_outline.size()], plainColor(surface), place);
        break;
    case Dots:
        for (const QVector3D& corner : m_outline)
            addDot(corner, plainColor(surface), dotSizeOf(m_state.style), place);
        break;
    case Invisible:
        break;
    default: {
        const QVector3D normal = normalOf(m_outline);
        if (isDrawable(normal) && !normal.isNull())
            addFilled(surface, normal, place);
    }
    }
}

void SceneTraversal::addFilled(const Surface& surface, const QVector3D& normal, int place)
{
    DrawList::Face face {};
    face.normal = normal;
    face.place = place;
    for (std::size_t i = 1; i + 1 < m_outline.size(); ++i) {
        m_polygon.assign({ m_outline[0], m_outline[i], m_outline[i + 1] });
        for (const HalfSpace& half : m_clipPlanes)
            m_polygon.cut(half);
        const std::vector<QVector3D>& left = m_polygon.corners();
        for (std::size_t k = 1; k + 1 < left.size(); ++k) {
            face.corners = { left[0], left[k], left[k + 1] };
            shade(face, surface, m_lights);
            m_list.faces.push_back(face);
        }
    }
}

void SceneTraversal::addSegment(const QVector3D& from, const QVector3D& to, QRgb color, int place)
{
    m_polygon.assign({ from, to });
    for (const HalfSpace& half : m_clipPlanes)
        m_polygon.cut(half);
    const std::vector<QVector3D>& left = m_polygon.corners();
    if (left.size() == 2)
        m_list.segments.push_back(
            { { left[0], left[1] }, color, valueOf(m_state.style->lineWidth, 1.0F), place });
}

void SceneTraversal::addDot(const QVector3D& at, QRgb color, float size, int place)
{
    if (!isCutOff(at))
        m_list.dots.push_back({ at, color, size, place });
}

void SceneTraversal::addDots(const Points& points, int parent)
{
    const KnDrawStyle* const style = points.state.style;
    if (points.isUsed || styleOf(style) == Invisible)
        return;
    const int place = addPlace(*points.node, parent, NodeKind::Coordinates);
    for (int i = 0; i < rowsOf(points.node->point); ++i) {
        const QVector3D at = points.state.toWorld.map(toVector(points.node->point[i]));
        if (isDrawable(at))
            addDot(at, plainColor(surfaceOf(points.state.material, i)), dotSizeOf(style), place);
    }
}

void SceneTraversal::addLabel(KnText& node, int parent)
{
    DrawList::Label label {};
    label.at = m_state.toWorld.map(QVector3D());
    if (!isDrawable(label.at) || isCutOff(label.at) || rowsOf(node.string) == 0
        || styleOf(m_state.style) == Invisible)
        return;
    for (int i = 0; i < rowsOf(node.string); ++i) {
        label.lines += toQString(node.string[i]);
        label.widths.push_back(i < rowsOf(node.width) ? node.width[i] : 0.0F);
    }
    label.fontFamily = toQString(valueOf(node.fontName, {}));
    label.size = valueOf(node.size, 12.0F);
    label.spacing = valueOf(node.spacing, 1.0F);
    label.justification = static_cast<DrawList::Justification>(
        std::clamp(valueOf(node.justification, 0), 0, 2)); // in the order of the node's values
    if (m_state.material)
        label.color = QColor(plainColor(surfaceOf(m_state.material, 0)));
    label.place = addPlace(node, parent, NodeKind::Text);
    m_list.labels.push_back(std::move(label));
}
