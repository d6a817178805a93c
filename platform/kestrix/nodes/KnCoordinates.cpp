// SPDX-License-Identifier: BSD-3-Clause
#include "KnCoordinates.h"

KN_NODE_SOURCE(KnCoordinates, KnNode)

KnCoordinates::KnCoordinates() { KN_FIELD(point, { "The points of the shapes that follow." }); }
