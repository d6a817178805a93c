// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnNodePtr.h"

/// Keeps a node alive while code runs that may do anything: the setters and getters of programs. If
/// everybody else has let go of it meanwhile, it goes when the event loop is back, since the
/// callers aren't done with the field. One that nobody holds yet stays as it is, since giving a
/// reference back would destroy it.
class NodeHold {
public:
    explicit NodeHold(KnFieldContainer* node);
    NodeHold(const NodeHold&) = delete;
    NodeHold& operator=(const NodeHold&) = delete;
    ~NodeHold();

private:
    const KnNodePtr m_node; // null for one that nobody holds
};
