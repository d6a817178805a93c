// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnNodePtr.h"

#include <unordered_set>
#include <vector>

/// For whoever has kept the address of a node, but no reference and no sensor: which of those
/// addresses belong to nodes of the graph now. The addresses are compared and nothing else.
std::unordered_set<const KnFieldContainer*> findLiveNodes(
    const std::vector<KnNodePtr>& roots, std::unordered_set<const KnFieldContainer*> wanted);
