// SPDX-License-Identifier: BSD-3-Clause
#include "ConvexPolygon.h"

#include <algorithm>

void ConvexPolygon::cut(const HalfSpace& half)
{
    if (std::all_of(m_corners.begin(), m_corners.end(),
            [&half](const QVector3D& corner) { return half.holds(corner); }))
        return;
    const bool isLine = m_corners.size() == 2;
    m_kept.clear();
    for (std::size_t i = 0; i < m_corners.size(); ++i) {
        const QVector3D& from = m_corners[i];
        const QVector3D& to = m_corners[(i + 1) % m_corners.size()];
        const float fromDepth = half.depthOf(from);
        const float toDepth = half.depthOf(to);
        if (fromDepth >= 0.0F)
            m_kept.push_back(from);
        if ((fromDepth >= 0.0F) != (toDepth >= 0.0F))
            m_kept.push_back(from + (to - from) * (fromDepth / (fromDepth - toDepth)));
    }
    // The way back along a line crosses the plane a second time.
    if (isLine && m_kept.size() > 2)
        m_kept.resize(2);
    m_corners.swap(m_kept);
}
