// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QVector3D>

/// All points on one side of a plane: those p with dot(normal, p) >= distance.
struct HalfSpace {
    QVector3D normal; // of any length but zero
    float distance = 0.0F;

    /// Negative outside; in units of the normal's length.
    float depthOf(const QVector3D& point) const
    {
        return QVector3D::dotProduct(normal, point) - distance;
    }
    bool holds(const QVector3D& point) const { return depthOf(point) >= 0.0F; }
};
