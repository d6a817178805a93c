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

/// For each entry the place of its partner in the other list, or none. Partners of equal address
/// pair up in order.
std::vector<int> pairUp(
    const std::vector<const void*>& before, const std::vector<const void*>& after)
{
    std::unordered_map<const void*, std::vector<int>> places; // the last ones first
    for (int i = static_cast<int>(after.size()) - 1; i >= 0; --i)
        places[after[at(i)]].push_back(i);
    std::vector<int> partners;
    partners.reserve(before.size());
    for (const void* const entry : before) {
        const auto found = entry ? places.find(entry) : places.end();
        if (found == places.end() || found->second.empty()) {
            partners.push_back(none);
            continue;
        }
        partners.push_back(found->second.back());
        found->second.pop_back();
    }
    return partners;
}

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
    const std::vector<int> partners = pairUp(before, after);
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
