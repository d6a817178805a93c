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

std::vector<bool> DrawList::placesOf(const KnFieldContainer* node) const
{
    std::vector<bool> isOf(places.size());
    // By parent, from -1 on: whether what comes next in the group is in the reach of the node.
    std::vector<bool> isReached(places.size() + 1);
    NodeKind kind = NodeKind::NotDrawn;
    for (std::size_t i = 0; i < places.size(); ++i) {
        const Place& place = places[i];
        const auto group = static_cast<std::size_t>(place.parent) + 1;
        if (place.node == node) {
            kind = place.kind;
            isReached[group] = place.reach != Reach::Itself;
        } else if (place.kind == kind && place.reach == Reach::RestToNext) {
            isReached[group] = false;
        }
        isOf[i] = place.node == node || isReached[group] || (group > 0 && isOf[group - 1]);
    }
    return isOf;
}
