// SPDX-License-Identifier: BSD-3-Clause
#include "KnText.h"

KN_NODE_SOURCE(KnText, KnNode)

KnText::KnText()
{
    KN_FIELD(string);
    KN_FIELD(fontName);
    KN_FIELD(size);
    KN_FIELD(spacing);
    KN_FIELD(justification);
    KN_FIELD(width);
    justification.setEnums({ { "LEFT", 0 }, { "CENTER", 1 }, { "RIGHT", 2 } });
    fontName.setValue(KbName("Sans"));
    size.setValue(12.0F);
    spacing.setValue(1.0F);
}
