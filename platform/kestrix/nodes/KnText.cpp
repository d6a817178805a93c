// SPDX-License-Identifier: BSD-3-Clause
#include "KnText.h"

KN_NODE_SOURCE(KnText, KnNode)

KnText::KnText()
{
    KN_FIELD(string, { "The lines of the text." });
    KN_FIELD(fontName, { "The name of the font." });
    KN_FIELD(size, { "The height of the letters.", "", 0 });
    KN_FIELD(spacing, { "How far one line stands below the other.", "lines" });
    KN_FIELD(justification,
        { "Whether the lines begin at the left, stand in the middle or end at the right." });
    KN_FIELD(width, { "The width of each line; 0 leaves a line as wide as its text.", "", 0 });
    justification.setEnums({ { "LEFT", 0 }, { "CENTER", 1 }, { "RIGHT", 2 } });
    fontName.setValue(KbName("Sans"));
    size.setValue(12.0F);
    spacing.setValue(1.0F);
}
