// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnMFields.h"
#include "KnNode.h"
#include "KnSFields.h"

/// Values that change over time, for nodes given by name.
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
