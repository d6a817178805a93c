// SPDX-License-Identifier: BSD-3-Clause
#include "KnDrawStyle.h"

KN_NODE_SOURCE(KnDrawStyle, KnNode)

KnDrawStyle::KnDrawStyle()
{
    KN_FIELD(
        style, { "Whether faces are filled, drawn as lines or as points, or not drawn at all." });
    KN_FIELD(parts, { "Which parts of a shape are drawn." });
    KN_FIELD(pointSize, { "The diameter of points.", "pixels", 0 });
    KN_FIELD(lineWidth, { "The width of lines.", "pixels", 0 });
    KN_FIELD(linePattern,
        { "Which pixels of a line are drawn: one bit for each, from the first on, over and "
          "over." });
    KN_FIELD(linePatternScale,
        { "How many pixels of a line each bit of the pattern stands for.", "pixels", 1 });
    KN_FIELD(depthOffset,
        { "How far what follows is moved in depth, so that lines on a surface don't sink into "
          "it." });
    KN_FIELD(
        selectionMask, { "The selection groups that what follows belongs to, one bit for each." });
    style.setEnums({ { "FILLED", 0 }, { "LINES", 1 }, { "POINTS", 2 }, { "INVISIBLE", 3 } });
    parts.setEnums({ { "SIDES", 1 }, { "TOP", 2 }, { "BOTTOM", 4 }, { "ALL", 7 } });
    parts.setValue(7);
    pointSize.setValue(1.0F);
    lineWidth.setValue(1.0F);
    linePattern.setValue(0xffff);
    linePatternScale.setValue(1);
    selectionMask.setValue(0xffffffffU);
}
