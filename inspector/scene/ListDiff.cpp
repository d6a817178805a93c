// SPDX-License-Identifier: BSD-3-Clause
#include "ListDiff.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <unordered_map>

namespace {

// A view is told of each move alone, and some views lay everything out for each.
constexpr std::size_t maxMoves = 16;

constexpr int none = -1;

std::size_t at(int index) { return static_cast<std::size_t>(index); }

// Where lists differ in places alone, they agree again after a few entries.
constexpr int farthestLook = 32;

/// Pairs up the entries of two lists: for each of the first its partner in the second, or none.
class Pairing {
public:
    Pairing(const std::vector<const void*>& before, const std::vector<const void*>& after)
        : m_before(before)
        , m_after(after)
        , m_partners(before.size(), none)
    {
        pairInOrder();
        pairTheRest();
    }

    const std::vector<int>& partners() const { return m_partners; }

private:
    bool same(int place, int partner) const
    {
        return at(place) < m_before.size() && at(partner) < m_after.size() && m_before[at(place)]
            && m_before[at(place)] == m_after[at(partner)];
    }

    void pairInOrder()
    {
        int place = 0;
        int partner = 0;
        while (at(place) < m_before.size() && at(partner) < m_after.size()) {
            int distance = 0;
            while (distance < farthestLook && !same(place + distance, partner)
                && !same(place, partner + distance))
                ++distance;
            if (distance == farthestLook) {
                m_rest.push_back(partner++);
                ++place;
                continue;
            }
            if (same(place + distance, partner)) {
                place += distance;
            } else {
                for (int i = 0; i < distance; ++i)
                    m_rest.push_back(partner++);
            }
            m_partners[at(place++)] = partner++;
        }
        for (; at(partner) < m_after.size(); ++partner)
            m_rest.push_back(partner);
    }

    void pairTheRest()
    {
        std::unordered_multimap<const void*, int> rest;
        for (const int partner : m_rest)
            rest.emplace(m_after[at(partner)], partner);
        for (std::size_t i = 0; i < m_before.size() && !rest.empty(); ++i) {
            if (m_partners[i] != none || !m_before[i])
                continue;
            if (const auto found = rest.find(m_before[i]); found != rest.end()) {
                m_partners[i] = found->second;
                rest.erase(found);
            }
        }
    }

    const std::vector<const void*>& m_before;
    const std::vector<const void*>& m_after;
    std::vector<int> m_partners;
    std::vector<int> m_rest; // places in the second list without a partner in order
};

/// Which of the numbers belong to a longest rising subsequence.
std::vector<bool> longestRise(const std::vector<int>& numbers)
{
    std::vector<int> ends; // for each length, where the rise with the lowest end stops
    std::vector<int> previous(numbers.size(), none);
    for (int i = 0; i < static_cast<int>(numbers.size()); ++i) {
        const auto place = std::lower_bound(ends.begin(), ends.end(), numbers[at(i)],
            [&numbers](int end, int number) { return numbers[at(end)] < number; });
        if (place != ends.begin())
            previous[at(i)] = *std::prev(place);
        if (place == ends.end())
            ends.push_back(i);
        else
            *place = i;
    }
    std::vector<bool> belongs(numbers.size(), false);
    for (int i = ends.empty() ? none : ends.back(); i != none; i = previous[at(i)])
        belongs[at(i)] = true;
    return belongs;
}

int indexOf(const std::vector<int>& list, int value)
{
    return static_cast<int>(std::find(list.begin(), list.end(), value) - list.begin());
}

} // namespace

ListDiff::ListDiff(const std::vector<const void*>& before, const std::vector<const void*>& after)
{
    const Pairing pairing(before, after);
    const std::vector<int>& partners = pairing.partners();
    std::vector<bool> paired(after.size(), false);
    for (int i = static_cast<int>(before.size()) - 1; i >= 0; --i) {
        if (partners[at(i)] != none)
            paired[at(partners[at(i)])] = true;
        else if (!m_removals.empty() && m_removals.back().first == i + 1)
            m_removals.back() = { i, m_removals.back().count + 1 };
        else
            m_removals.push_back({ i, 1 });
    }

    std::vector<int> ranks(after.size()); // among those that are in both lists
    int rank = 0;
    for (int i = 0; i < static_cast<int>(after.size()); ++i) {
        ranks[at(i)] = rank;
        if (paired[at(i)])
            ++rank;
        else if (!m_insertions.empty()
            && m_insertions.back().first + m_insertions.back().count == i)
            ++m_insertions.back().count;
        else
            m_insertions.push_back({ i, 1 });
    }

    std::vector<int> kept;
    for (const int partner : partners) {
        if (partner != none)
            kept.push_back(ranks[at(partner)]);
    }
    if (!std::is_sorted(kept.begin(), kept.end()))
        findMoves(kept);
}

/// `ranks` says for each entry that is in both lists which of them it is in the end.
void ListDiff::findMoves(const std::vector<int>& ranks)
{
    const std::vector<bool> stays = longestRise(ranks);
    std::vector<int> movers;
    for (std::size_t i = 0; i < ranks.size(); ++i) {
        if (!stays[i])
            movers.push_back(ranks[i]);
    }
    if (movers.size() > maxMoves) {
        m_arrangement.resize(ranks.size());
        for (int i = 0; i < static_cast<int>(ranks.size()); ++i)
            m_arrangement[at(ranks[at(i)])] = i;
        return;
    }
    // In rising order, so that whatever belongs in front of one stands in the right order already.
    std::sort(movers.begin(), movers.end());
    std::vector<int> present = ranks;
    for (const int mover : movers) {
        const int from = indexOf(present, mover);
        present.erase(present.begin() + from);
        const int to = mover == 0 ? 0 : indexOf(present, mover - 1) + 1;
        present.insert(present.begin() + to, mover);
        m_moves.push_back({ from, to });
    }
}
