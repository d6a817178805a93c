// SPDX-License-Identifier: BSD-3-Clause
#include "FieldDefaults.h"

#include "KnField.h"

KnFieldContainer* FieldDefaults::nodeLike(const KnFieldContainer& node)
{
    const KnType type = node.getObjectType();
    const auto [place, isNew] = m_nodes.try_emplace(&type.getName().getString());
    if (isNew && type.canCreateInstance())
        place->second = KnNodePtr(static_cast<KnFieldContainer*>(type.createInstance()));
    return place->second.get();
}

KnField* FieldDefaults::of(const KnField& field)
{
    const KnFieldContainer* const node = field.getContainer();
    KnFieldContainer* const fresh = node ? nodeLike(*node) : nullptr;
    if (!fresh)
        return nullptr;
    const KnFieldData* const data = node->getContainerFieldData();
    return data->getField(fresh, data->getIndex(node, &field));
}
