// SPDX-License-Identifier: BSD-3-Clause
#include "KbGeometry.h"

#include <cmath>

KbRotation::KbRotation(const float (&quaternion)[4])
{
    const double x = quaternion[0];
    const double y = quaternion[1];
    const double z = quaternion[2];
    const double w = quaternion[3];
    const double length = std::sqrt(x * x + y * y + z * z);
    // A zero vector part is no rotation, whatever w is.
    if (length == 0.0 || !std::isfinite(length) || !std::isfinite(w))
        return;
    m_axis = KbVec3f(x / length, y / length, z / length);
    m_radians = static_cast<float>(2.0 * std::atan2(length, w));
}

std::array<float, 4> KbRotation::getValue() const
{
    const double x = m_axis[0];
    const double y = m_axis[1];
    const double z = m_axis[2];
    const double length = std::sqrt(x * x + y * y + z * z);
    if (length == 0.0 || !std::isfinite(length) || !std::isfinite(m_radians))
        return { 0.0F, 0.0F, 0.0F, 1.0F };
    const double half = 0.5 * m_radians;
    const double scale = std::sin(half) / length;
    return { static_cast<float>(x * scale), static_cast<float>(y * scale),
        static_cast<float>(z * scale), static_cast<float>(std::cos(half)) };
}
