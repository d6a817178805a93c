// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnMFields.h"
#include "KnNode.h"
#include "KnSFields.h"

/// Values over time for the nodes of a group.
class KnAnimation : public KnNode {
    KN_NODE(KnAnimation)
    KnSFBool loop;
    KnSFTime startTime;
    KnSFTime duration;
    KnSFDouble speed;
    KnMFTime keyTime;
    KnMFDouble keyFraction; ///< 0 to 1
    KnMFRotation keyRotation;
    KnMFMatrix keyMatrix;
    KnMFName target; ///< names of nodes
};
