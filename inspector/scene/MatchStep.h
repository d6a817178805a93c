// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnNodePtr.h"

#include <vector>

class NodeFilter;

/// A place in the graph: the index of a root, of a child of it, and so on.
using NodeRows = std::vector<int>;

/// The next place of a node that matches the filter's query, from top to bottom as a tree shows
/// them, or the one before; behind the last comes the first. `from` may be empty, for none. Empty
/// if there is no match. It goes no way that leads to none.
NodeRows nextMatch(
    NodeFilter& filter, const std::vector<KnNodePtr>& roots, const NodeRows& from, bool forward);
