// SPDX-License-Identifier: BSD-3-Clause
#include "KnDrawing.h"

KN_NODE_SOURCE(KnDrawing, KnNode)

KnDrawing::KnDrawing()
{
    KN_FIELD(origin);
    KN_FIELD(size);
    KN_FIELD(outline);
    KN_FIELD(mark);
    KN_FIELD(color);
    size.setValue(std::int16_t { 100 }, std::int16_t { 100 });
}
