// SPDX-License-Identifier: BSD-3-Clause
#include "KnDrawing.h"

KN_NODE_SOURCE(KnDrawing, KnNode)

KnDrawing::KnDrawing()
{
    KN_FIELD(origin, { "Where in the window the drawing begins.", "pixels" });
    KN_FIELD(size, { "The width and the height of the drawing.", "pixels", 0 });
    KN_FIELD(outline, { "The corners of the outline.", "pixels" });
    KN_FIELD(mark, { "Where the marks are, seen from the origin.", "pixels" });
    KN_FIELD(color, { "The red, green, blue and opacity of each figure.", "", 0, 1 });
    size.setValue(std::int16_t { 100 }, std::int16_t { 100 });
}
