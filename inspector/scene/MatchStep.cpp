// SPDX-License-Identifier: BSD-3-Clause
#include "MatchStep.h"

#include "KnGroup.h"
#include "NodeFilter.h"

#include <algorithm>

namespace {

/// Looks through the places that the filter lets through.
class Search {
public:
    Search(NodeFilter& filter, const std::vector<KnNodePtr>& roots)
        : m_filter(filter)
        , m_roots(roots)
    {
        for (int i = 0; i < static_cast<int>(roots.size()); ++i) {
            if (filter.accepts(roots[static_cast<std::size_t>(i)].get()))
                m_acceptedRoots.push_back(i);
        }
    }

    NodeRows firstBehind(const NodeRows& from)
    {
        NodeRows rows = from;
        NodeRows found;
        // Below it, then below each that stands above, behind the way that leads here.
        if (!rows.empty() && firstBelow(rows, -1, found))
            return found;
        while (!rows.empty()) {
            const int last = rows.back();
            rows.pop_back();
            if (firstBelow(rows, last, found))
                return found;
        }
        return {};
    }

    NodeRows lastBefore(const NodeRows& from)
    {
        NodeRows rows = from;
        NodeRows found;
        while (!rows.empty()) {
            const int last = rows.back();
            rows.pop_back();
            if (lastBelow(rows, last, found))
                return found;
            if (!rows.empty() && isMatch(rows))
                return rows;
        }
        return {};
    }

    NodeRows first()
    {
        NodeRows found;
        firstBelow({}, -1, found);
        return found;
    }

    NodeRows last()
    {
        NodeRows found;
        lastBelow({}, static_cast<int>(m_roots.size()), found);
        return found;
    }

private:
    KnFieldContainer* nodeAt(const NodeRows& rows) const
    {
        KnFieldContainer* node = nullptr;
        for (const int row : rows) {
            if (const auto* const group = dynamic_cast<const KnGroup*>(node))
                node = group->getChild(row);
            else if (!node && row >= 0 && row < static_cast<int>(m_roots.size()))
                node = m_roots[static_cast<std::size_t>(row)].get();
            else
                return nullptr;
        }
        return node;
    }

    bool isMatch(const NodeRows& rows) const
    {
        KnFieldContainer* const node = nodeAt(rows);
        return node && m_filter.isMatch(*node);
    }

    std::vector<int> accepted(const NodeRows& rows)
    {
        if (rows.empty())
            return m_acceptedRoots;
        auto* const group = dynamic_cast<KnGroup*>(nodeAt(rows));
        return group ? m_filter.acceptedChildren(group) : std::vector<int>();
    }

    bool firstBelow(const NodeRows& top, int behind, NodeRows& found)
    {
        const std::vector<int> rows = accepted(top);
        for (auto row = std::upper_bound(rows.begin(), rows.end(), behind); row != rows.end();
             ++row) {
            NodeRows place = top;
            place.push_back(*row);
            if (isMatch(place)) {
                found = place;
                return true;
            }
            if (firstBelow(place, -1, found))
                return true;
        }
        return false;
    }

    bool lastBelow(const NodeRows& top, int before, NodeRows& found)
    {
        const std::vector<int> rows = accepted(top);
        for (auto row = std::lower_bound(rows.begin(), rows.end(), before); row != rows.begin();) {
            NodeRows place = top;
            place.push_back(*--row);
            if (const auto* const group = dynamic_cast<const KnGroup*>(nodeAt(place));
                group && lastBelow(place, group->getNumChildren(), found))
                return true;
            if (isMatch(place)) {
                found = place;
                return true;
            }
        }
        return false;
    }

    NodeFilter& m_filter;
    const std::vector<KnNodePtr>& m_roots;
    std::vector<int> m_acceptedRoots;
};

} // namespace

NodeRows nextMatch(
    NodeFilter& filter, const std::vector<KnNodePtr>& roots, const NodeRows& from, bool forward)
{
    Search search(filter, roots);
    const NodeRows next = forward ? search.firstBehind(from) : search.lastBefore(from);
    if (!next.empty())
        return next;
    return forward ? search.first() : search.last();
}
