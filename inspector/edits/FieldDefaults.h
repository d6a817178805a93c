// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnNodePtr.h"

#include <unordered_map>

class KnField;

/// What fields hold in a fresh node of their type. Such a node is made once for each type.
class FieldDefaults {
public:
    /// Null for a type of which there can be no fresh node.
    KnFieldContainer* nodeLike(const KnFieldContainer& node);
    /// The same field of the fresh node; null if there is none. It stays where it is.
    KnField* of(const KnField& field);

private:
    std::unordered_map<const KbString*, KnNodePtr> m_nodes; // by the name of the type
};
