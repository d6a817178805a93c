// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "DrawList.h"

#include <QMatrix4x4>
#include <QQuaternion>
#include <QVector2D>
#include <QVector3D>

/// A camera that a person turns around a point. It stays upright: it turns about that axis of the
/// world which was closest to its own when it was placed.
class OrbitCamera {
public:
    /// Places the camera, and the point to turn around as deep in front of it as the scene lies.
    void place(const DrawList::Viewpoint& viewpoint, const DrawList::Bounds& bounds);
    /// Shows everything from the side where the camera is. `aspect` is width by height.
    void fit(const DrawList::Bounds& bounds, float aspect);
    /// The direction of a camera that nobody has placed: obliquely from above, with y up.
    void reset();

    /// Radians: to the right, and up.
    void orbit(float right, float up);
    /// Moves the scene across the picture, in heights of it: to the right, and down.
    void pan(const QVector2D& move, float aspect);
    /// Multiplies the distance from the point in the middle.
    void zoom(float factor);

    QVector3D position() const;
    /// From the world to the camera, which looks along -z, with y up.
    QMatrix4x4 view() const;
    /// Half of the picture's height at distance 1. The camera's angle counts for the shorter side
    /// of the picture, so that a narrow one shows no less.
    float halfHeight(float aspect) const;
    /// What is nearer than this isn't drawn.
    float nearDistance() const { return m_distance * 1e-3F; }

private:
    QQuaternion m_orientation;
    QVector3D m_target;
    QVector3D m_up { 0.0F, 1.0F, 0.0F }; // an axis of the world
    float m_distance = 1.0F; // of the target
    float m_heightAngle = 0.785398F; // radians
};
