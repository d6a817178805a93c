// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "HalfSpace.h"
#include "KnSFields.h"

#include <QMatrix4x4>
#include <QQuaternion>

class KnMatrixTransform;
class KnTransform;

// The kernel's values as those of Qt's geometry. A matrix of the kernel stands to the right of the
// row that it transforms, one of Qt's to the left of the column.

QMatrix4x4 matrixOf(const KnTransform& node);
QMatrix4x4 matrixOf(const KnMatrixTransform& node);

inline QVector3D toVector(const KbVec3f& v) { return { v[0], v[1], v[2] }; }
QQuaternion toQuaternion(const KbRotation& rotation);
/// What lies in front of a plane, seen from outside of a transformation.
HalfSpace transformed(const KbPlane& plane, const QMatrix4x4& matrix);

/// Whether a point can be drawn: its numbers are finite, and leave room to calculate with.
bool isDrawable(const QVector3D& point);
