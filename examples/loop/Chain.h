// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnGroup.h"
#include "KnNodePtr.h"

#include <deque>
#include <vector>

/// Balls on springs below an anchor, in metres and seconds, as a scene graph. The places of the
/// balls, of the anchor and the gravity live in fields of the nodes alone, so that whoever writes
/// one of these takes part. Drops fall off the last ball; their nodes come and go.
class Chain {
public:
    explicit Chain(int ballCount);
    Chain(const Chain&) = delete; // a copy would move the same nodes
    Chain& operator=(const Chain&) = delete;

    KnGroup* root() const { return m_root; }
    /// `seconds` is the time since the last step, some hundredths at most.
    void step(float seconds);

private:
    struct Body {
        KnGroup* node; // held by the group that it stands in
        KnSFVec3f* place; // its transform's translation
        KbVec3f velocity;
    };

    static Body makeBody(
        const char* name, const KbVec3f& place, float red, float green, float blue);
    void pull(float seconds);
    void drip(float seconds);

    KnNodePtr m_rootHolder;
    KnGroup* m_root; // held above
    KnGroup* m_drops; // a child of the root, and so are the nodes below
    KnSFVec3f* m_gravity;
    Body m_anchor;
    std::vector<Body> m_balls;
    std::deque<Body> m_falling;
    float m_untilDrop;
    int m_dropCount = 0;
};
