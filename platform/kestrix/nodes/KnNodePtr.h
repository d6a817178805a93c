// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnFieldContainer.h"

#include <utility>

/// Keeps a node alive by holding a reference on it; may be null.
class KnNodePtr {
public:
    KnNodePtr() = default;
    explicit KnNodePtr(KnFieldContainer* node)
        : m_node(node)
    {
        if (m_node)
            m_node->ref();
    }
    /// Null for a node that nobody holds yet, since letting go of it would destroy it.
    static KnNodePtr ofHeld(KnFieldContainer* node)
    {
        return KnNodePtr(node && node->getReferenceCount() > 0 ? node : nullptr);
    }
    KnNodePtr(const KnNodePtr& other)
        : KnNodePtr(other.m_node)
    {
    }
    KnNodePtr(KnNodePtr&& other) noexcept
        : m_node(std::exchange(other.m_node, nullptr))
    {
    }
    KnNodePtr& operator=(KnNodePtr other) noexcept
    {
        std::swap(m_node, other.m_node);
        return *this;
    }
    ~KnNodePtr()
    {
        if (m_node)
            m_node->unref();
    }

    KnFieldContainer* get() const { return m_node; }
    KnFieldContainer* operator->() const { return m_node; }
    explicit operator bool() const { return m_node != nullptr; }

private:
    KnFieldContainer* m_node = nullptr; // a reference is held
};
