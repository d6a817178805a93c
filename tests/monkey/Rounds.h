// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

#include <vector>

/// Plays rounds, each in a process of its own, and cuts a round that fails down to its shortest
/// list of steps, by processes again.
class Rounds {
public:
    /// For the fault, see Player::plantFault; -1 plants none.
    Rounds(int stepsInRound, int plantedStep)
        : m_stepsInRound(stepsInRound)
        , m_plantedStep(plantedStep)
    {
    }

    /// Rounds with the seeds from `seed` on, until the time is over; at least one. False as soon as
    /// one fails; its seed and its steps are printed. Also false if no editor could be compared.
    bool run(quint64 seed, int seconds) const;

private:
    struct Outcome {
        QString fault; ///< empty if all went well
        QString kind; ///< what the fault has in common with the same one after other steps
        QString output;
        int lastStep = -1; ///< that was begun
        int comparisons = 0; ///< of what an editor shows
    };

    Outcome play(quint64 seed, const std::vector<int>& steps) const;
    void shorten(quint64 seed, const Outcome& outcome, std::vector<int> steps) const;

    const int m_stepsInRound;
    const int m_plantedStep;
};
