// SPDX-License-Identifier: BSD-3-Clause
#include "NodeMatrix.h"

#include "KnMatrixTransform.h"
#include "KnTransform.h"
#include "NodeKind.h"

#include <cmath>

QMatrix4x4 matrixOf(const KnTransform& node)
{
    const QVector3D center = toVector(valueOf(node.center, {}));
    const QQuaternion scaleAxes = toQuaternion(valueOf(node.scaleOrientation, {}));
    QMatrix4x4 matrix;
    matrix.translate(toVector(valueOf(node.translation, {})) + center);
    matrix.rotate(toQuaternion(valueOf(node.rotation, {})) * scaleAxes);
    matrix.scale(toVector(valueOf(node.scaleFactor, { 1.0F, 1.0F, 1.0F })));
    matrix.rotate(scaleAxes.conjugated());
    matrix.translate(-center);
    return matrix;
}

QMatrix4x4 matrixOf(const KnMatrixTransform& node)
{
    return QMatrix4x4(valueOf(node.matrix, {}).getValue()).transposed();
}

QQuaternion toQuaternion(const KbRotation& rotation)
{
    const auto [x, y, z, w] = rotation.getValue();
    return { w, x, y, z };
}

HalfSpace transformed(const KbPlane& plane, const QMatrix4x4& matrix)
{
    const QVector3D normal = toVector(plane.getNormal());
    // As the row that it is, a plane is transformed by the inverse.
    const QVector4D row = QVector4D(normal, -plane.getDistanceFromOrigin()) * matrix.inverted();
    return { row.toVector3D(), -row.w() };
}

bool isDrawable(const QVector3D& point)
{
    constexpr float limit = 1e15F;
    // A comparison with something that is no number fails, too.
    return std::abs(point.x()) < limit && std::abs(point.y()) < limit
        && std::abs(point.z()) < limit;
}
