// SPDX-License-Identifier: BSD-3-Clause
#include "OrbitCamera.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

namespace {

// So that a scene of a single point can be looked at, too.
constexpr float leastRadius = 1e-3F;

QVector3D nearestAxis(const QVector3D& direction)
{
    int best = 0;
    for (int i = 1; i < 3; ++i) {
        if (std::abs(direction[i]) > std::abs(direction[best]))
            best = i;
    }
    QVector3D axis;
    axis[best] = direction[best] < 0.0F ? -1.0F : 1.0F;
    return axis;
}

} // namespace

void OrbitCamera::place(const DrawList::Viewpoint& viewpoint, const DrawList::Bounds& bounds)
{
    m_orientation = viewpoint.orientation;
    m_heightAngle = viewpoint.heightAngle > 0.01F ? std::min(viewpoint.heightAngle, 3.0F) : 0.01F;
    m_up = nearestAxis(m_orientation.rotatedVector({ 0.0F, 1.0F, 0.0F }));
    const QVector3D forward = m_orientation.rotatedVector({ 0.0F, 0.0F, -1.0F });
    const float depth = QVector3D::dotProduct(bounds.center() - viewpoint.position, forward);
    // A camera in the middle of things turns around something before its eyes.
    m_distance = std::max({ depth, bounds.radius() / 4.0F, leastRadius });
    m_target = viewpoint.position + forward * m_distance;
}

void OrbitCamera::fit(const DrawList::Bounds& bounds, float aspect)
{
    const float halfWide = std::atan(halfHeight(aspect) * std::min(aspect, 1.0F));
    m_target = bounds.center();
    m_distance = std::max(bounds.radius(), leastRadius) / std::sin(halfWide);
}

void OrbitCamera::reset()
{
    *this = OrbitCamera();
    m_orientation = QQuaternion::fromEulerAngles(-25.0F, 30.0F, 0.0F);
}

void OrbitCamera::orbit(float right, float up)
{
    // Not over the pole, where right and left would change sides.
    constexpr float steepest = 1.5F;
    const QVector3D forward = m_orientation.rotatedVector({ 0.0F, 0.0F, -1.0F });
    const float slope = -std::asin(std::clamp(QVector3D::dotProduct(forward, m_up), -1.0F, 1.0F));
    const float allowed
        = std::clamp(slope + up, std::min(slope, -steepest), std::max(slope, steepest));
    const QQuaternion aside = QQuaternion::fromAxisAndAngle(m_up, qRadiansToDegrees(right));
    const QQuaternion down
        = QQuaternion::fromAxisAndAngle({ 1.0F, 0.0F, 0.0F }, -qRadiansToDegrees(allowed - slope));
    m_orientation = (aside * m_orientation * down).normalized();
}

void OrbitCamera::pan(const QVector2D& move, float aspect)
{
    const float height = 2.0F * halfHeight(aspect) * m_distance;
    m_target += m_orientation.rotatedVector({ -move.x(), move.y(), 0.0F }) * height;
}

void OrbitCamera::zoom(float factor) { m_distance = std::clamp(m_distance * factor, 1e-6F, 1e12F); }

QVector3D OrbitCamera::position() const
{
    return m_target + m_orientation.rotatedVector({ 0.0F, 0.0F, m_distance });
}

QMatrix4x4 OrbitCamera::view() const
{
    QMatrix4x4 matrix;
    matrix.rotate(m_orientation.conjugated());
    matrix.translate(-position());
    return matrix;
}

float OrbitCamera::halfHeight(float aspect) const
{
    return std::tan(m_heightAngle / 2.0F) / std::min(aspect, 1.0F);
}
