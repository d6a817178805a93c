// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnFieldContainer.h"

/// Keeps a node alive while code runs that may do anything: the setters and getters of programs.
/// One that nobody holds yet stays as it is, since giving a reference back would destroy it.
class NodeHold {
public:
    explicit NodeHold(KnFieldContainer* node)
        : m_node(node && node->getReferenceCount() > 0 ? node : nullptr)
    {
        if (m_node)
            m_node->ref();
    }
    NodeHold(const NodeHold&) = delete;
    NodeHold& operator=(const NodeHold&) = delete;
    ~NodeHold()
    {
        if (m_node)
            m_node->unref();
    }

private:
    KnFieldContainer* const m_node;
};
