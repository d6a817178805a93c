// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

#include <utility>

/// The chances of one step: they follow from the seed and the step's number alone, whatever steps
/// went before.
class StepRandom {
public:
    StepRandom(quint64 seed, int step)
        : m_state(mixed(seed) ^ mixed(quint64(step) + 1))
    {
    }

    quint64 next() { return mixed(m_state += 0x9e3779b97f4a7c15U); }
    /// From 0 to `limit - 1`; 0 for a limit below 1.
    int below(int limit) { return limit > 0 ? int(next() % quint64(limit)) : 0; }
    bool oneIn(int count) { return below(count) == 0; }

    /// The index of a candidate; -1 if there are none. It hangs on the names, so that it stays the
    /// same where other candidates come and go, as they do when steps are left out.
    template <class Candidates, class NameOf>
    int choose(const Candidates& candidates, NameOf nameOf)
    {
        const quint64 salt = next();
        int chosen = -1;
        quint64 lowest = 0;
        for (int i = 0; i < int(candidates.size()); ++i) {
            const quint64 rank = mixed(hash(nameOf(candidates[i])) ^ salt);
            if (chosen < 0 || rank < lowest) {
                chosen = i;
                lowest = rank;
            }
        }
        return chosen;
    }

private:
    static quint64 mixed(quint64 bits)
    {
        bits = (bits ^ (bits >> 30)) * 0xbf58476d1ce4e5b9U;
        bits = (bits ^ (bits >> 27)) * 0x94d049bb133111ebU;
        return bits ^ (bits >> 31);
    }
    static quint64 hash(const QString& text)
    {
        quint64 bits = 0xcbf29ce484222325U;
        for (const QChar character : text)
            bits = (bits ^ character.unicode()) * 0x100000001b3U;
        return bits;
    }

    quint64 m_state;
};
