// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnNodePtr.h"

#include <vector>

/// The first root that is the node or has it among its descendants; null if none has. It may look
/// at every node once. `node` may be null, and no root is.
KnFieldContainer* findRoot(const std::vector<KnNodePtr>& roots, const KnFieldContainer* node);

/// The roots as plain pointers, for whoever looks through the graph while they live.
std::vector<KnFieldContainer*> plainRoots(const std::vector<KnNodePtr>& roots);
