// SPDX-License-Identifier: BSD-3-Clause
#include "KnDrawStyle.h"

KN_NODE_SOURCE(KnDrawStyle, KnNode)

KnDrawStyle::KnDrawStyle()
{
    KN_FIELD(style);
    KN_FIELD(parts);
    KN_FIELD(pointSize);
    KN_FIELD(lineWidth);
    KN_FIELD(linePattern);
    KN_FIELD(linePatternScale);
    KN_FIELD(depthOffset);
    KN_FIELD(selectionMask);
    style.setEnums({ { "FILLED", 0 }, { "LINES", 1 }, { "POINTS", 2 }, { "INVISIBLE", 3 } });
    parts.setEnums({ { "SIDES", 1 }, { "TOP", 2 }, { "BOTTOM", 4 }, { "ALL", 7 } });
    parts.setValue(7);
    pointSize.setValue(1.0F);
    lineWidth.setValue(1.0F);
    linePattern.setValue(0xffff);
    linePatternScale.setValue(1);
    selectionMask.setValue(0xffffffffU);
}
