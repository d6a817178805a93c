// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "HalfSpace.h"

#include <initializer_list>
#include <vector>

/// A flat convex polygon, or a straight line as one of two corners, that planes cut pieces off. One
/// object serves any number of polygons, so that cutting needs no memory each time.
class ConvexPolygon {
public:
    void assign(std::initializer_list<QVector3D> corners) { m_corners = corners; }

    /// Keeps what lies inside. A line keeps two corners, or none.
    void cut(const HalfSpace& half);

    /// In order around the polygon; empty when nothing is left.
    const std::vector<QVector3D>& corners() const { return m_corners; }

private:
    std::vector<QVector3D> m_corners;
    std::vector<QVector3D> m_kept; // holds its memory from cut to cut
};
