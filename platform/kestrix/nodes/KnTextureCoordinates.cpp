// SPDX-License-Identifier: BSD-3-Clause
#include "KnTextureCoordinates.h"

KN_NODE_SOURCE(KnTextureCoordinates, KnNode)

KnTextureCoordinates::KnTextureCoordinates() { KN_FIELD(point); }
