// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "ConvexPolygon.h"
#include "DrawList.h"
#include "Rasterizer.h"

#include <QMatrix4x4>

#include <array>
#include <optional>

class OrbitCamera;

/// Draws a list as a camera sees it: all but the labels, for which it only says where they are.
class SceneRenderer {
public:
    /// `background` is an RGB32 image of the size wanted; `scale` is how many of its pixels are one
    /// of the list's.
    void draw(const DrawList& list, const OrbitCamera& camera, const QImage& background,
        float scale = 1.0F);

    /// Holds what was drawn last.
    Rasterizer& pixels() { return m_pixels; }
    const Rasterizer& pixels() const { return m_pixels; }
    /// Where a point of the world was last, in pixels of the image; none if it is behind the
    /// camera.
    std::optional<Rasterizer::Vertex> project(const QVector3D& point) const;

private:
    struct Transparent {
        const DrawList::Face* face;
        float depth; // along the camera's axis
    };

    void setCamera(const OrbitCamera& camera, const QSize& size);
    void drawFace(const DrawList::Face& face);
    void drawSegment(const DrawList::Segment& segment, float scale);
    bool isInView(const QVector3D& seen) const;
    void cutToView();
    Rasterizer::Vertex toPixels(const QVector3D& seen) const;
    QRgb colorOf(const DrawList::Face& face) const;

    Rasterizer m_pixels;
    QMatrix4x4 m_view;
    QVector3D m_eye;
    std::array<HalfSpace, 5> m_frustum; // as the camera sees it
    float m_pixelsPerSlope = 1.0F; // how many pixels something is wide that is as wide as far away
    float m_middleX = 0.0F;
    float m_middleY = 0.0F;
    ConvexPolygon m_polygon;
    std::vector<Transparent> m_transparent;
};
