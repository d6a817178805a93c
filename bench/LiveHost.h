// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnDatabase.h"
#include "KnGroup.h"
#include "KnNodePtr.h"
#include "KnTransform.h"

#include <chrono>
#include <ctime>
#include <thread>
#include <vector>

/// A program with 10,000 nodes in 100 groups, which writes 1,000 of their fields in each of its 60
/// frames a second. It knows nothing of an inspector.
class LiveHost {
public:
    static constexpr int groupCount = 100;
    static constexpr int nodesInGroup = 100;
    static constexpr int writesInFrame = 1000;
    static constexpr double frameSeconds = 1.0 / 60;

    LiveHost()
    {
        KnDatabase::init();
        m_root = KnNodePtr(new KnGroup);
        for (int i = 0; i < groupCount; ++i) {
            auto* const group = new KnGroup;
            root().addChild(group);
            for (int k = 0; k < nodesInGroup; ++k) {
                m_nodes.push_back(new KnTransform);
                group->addChild(m_nodes.back());
            }
        }
    }

    KnGroup& root() { return static_cast<KnGroup&>(*m_root.get()); }
    KnGroup& group(int index) { return static_cast<KnGroup&>(*root().getChild(index)); }
    /// In the order of the groups.
    KnTransform& node(int index) { return *m_nodes[static_cast<std::size_t>(index)]; }

    /// One frame of the simulation: a tenth of the nodes moves.
    void step()
    {
        ++m_frame;
        const auto at = static_cast<float>(m_frame);
        for (int i = 0; i < writesInFrame; ++i) {
            m_next = (m_next + 1) % (groupCount * nodesInGroup);
            node(m_next).translation.setValue(KbVec3f(at, at / 2, at / 4));
        }
    }

    /// Runs that many frames at their pace and gives the processor time of one, in seconds: that of
    /// the whole process, waiting excepted. `frame` is the work of one frame.
    template <class Frame>
    static double run(int frames, Frame frame)
    {
        const auto processorTime = [] {
            std::timespec time {};
            clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
            return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
        };
        const double start = processorTime();
        auto next = std::chrono::steady_clock::now();
        for (int i = 0; i < frames; ++i) {
            frame();
            next += std::chrono::duration_cast<std::chrono::steady_clock::duration>(
                std::chrono::duration<double>(frameSeconds));
            std::this_thread::sleep_until(next);
        }
        return (processorTime() - start) / frames;
    }

private:
    KnNodePtr m_root;
    std::vector<KnTransform*> m_nodes; // live in their groups
    int m_frame = 0;
    int m_next = 0;
};
