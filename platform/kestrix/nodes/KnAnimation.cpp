// SPDX-License-Identifier: BSD-3-Clause
#include "KnAnimation.h"

KN_NODE_SOURCE(KnAnimation, KnNode)

KnAnimation::KnAnimation()
{
    KN_FIELD(loop, { "Whether the animation starts over when it has ended." });
    KN_FIELD(startTime, { "When the animation starts.", "seconds" });
    KN_FIELD(duration, { "How long one run takes at a speed of 1.", "seconds", 0 });
    KN_FIELD(speed,
        { "How many times faster than usual the animation runs; below 0 it runs backwards." });
    KN_FIELD(
        keyTime, { "When each key is reached, counted from the start of a run.", "seconds", 0 });
    KN_FIELD(keyFraction, { "How much of a run has passed at each key.", "", 0, 1 });
    KN_FIELD(keyRotation,
        { "The axis and the angle by which the targets are turned at each key.", "radians" });
    KN_FIELD(keyMatrix, { "The matrix by which the targets are transformed at each key." });
    KN_FIELD(target, { "The names of the nodes that are animated." });
    duration.setValue(KbTime(1.0));
    speed.setValue(1.0);
}
