// SPDX-License-Identifier: BSD-3-Clause
#include "DrawList.h"

#include <algorithm>
#include <limits>

namespace {

void include(DrawList::Bounds& bounds, const QVector3D& point)
{
    for (int i = 0; i < 3; ++i) {
        bounds.lowest[i] = std::min(bounds.lowest[i], point[i]);
        bounds.highest[i] = std::max(bounds.highest[i], point[i]);
    }
}

} // namespace

bool DrawList::isEmpty() const
{
    return faces.empty() && segments.empty() && dots.empty() && labels.empty();
}

std::optional<DrawList::Bounds> DrawList::bounds() const
{
    if (isEmpty())
        return std::nullopt;
    constexpr float limit = std::numeric_limits<float>::max();
    Bounds bounds { { limit, limit, limit }, { -limit, -limit, -limit } };
    for (const Face& face : faces) {
        for (const QVector3D& corner : face.corners)
            include(bounds, corner);
    }
    for (const Segment& segment : segments) {
        for (const QVector3D& end : segment.ends)
            include(bounds, end);
    }
    for (const Dot& dot : dots)
        include(bounds, dot.at);
    for (const Label& label : labels)
        include(bounds, label.at);
    return bounds;
}

std::vector<bool> DrawList::placesBelow(const KnFieldContainer* node) const
{
    std::vector<bool> below(places.size());
    for (std::size_t i = 0; i < places.size(); ++i) {
        const int parent = places[i].parent;
        below[i] = places[i].node == node || (parent >= 0 && below[std::size_t(parent)]);
    }
    return below;
}
