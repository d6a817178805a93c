// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <vector>

/// The steps that make one list into another and keep what is in both: removals first, then moves,
/// then insertions. The work grows with the lengths of the lists.
class ListDiff {
public:
    struct Run {
        int first;
        int count;
    };
    /// The entry at `from` stands at `to` afterwards.
    struct Move {
        int from;
        int to;
    };

    /// Entries are equal if their addresses are; null is equal to nothing. An address that stands
    /// in a list several times stands for as many entries.
    ListDiff(const std::vector<const void*>& before, const std::vector<const void*>& after);

    /// From the back to the front, in the numbers of the list before.
    const std::vector<Run>& removals() const { return m_removals; }
    /// In the numbers that hold when their turn comes.
    const std::vector<Move>& moves() const { return m_moves; }
    /// Stands for the moves if there would be many of them, otherwise empty: the entry at place i
    /// is then the one that stood at place `arrangement()[i]` after the removals.
    const std::vector<int>& arrangement() const { return m_arrangement; }
    /// From the front to the back, in the numbers of the list after.
    const std::vector<Run>& insertions() const { return m_insertions; }

private:
    void findMoves(const std::vector<int>& ranks);

    std::vector<Run> m_removals;
    std::vector<Move> m_moves;
    std::vector<int> m_arrangement;
    std::vector<Run> m_insertions;
};
