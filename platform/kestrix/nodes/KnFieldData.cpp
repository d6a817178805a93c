// SPDX-License-Identifier: BSD-3-Clause
#include "KnFieldData.h"

#include "KnField.h"
#include "KnFieldContainer.h"

std::ptrdiff_t KnFieldData::offsetOf(const KnFieldContainer* container, const KnField* field)
{
    return reinterpret_cast<const char*>(field) - reinterpret_cast<const char*>(container);
}

int KnFieldData::findOffset(std::ptrdiff_t offset) const
{
    for (int i = 0; i < getNum(); ++i) {
        if (m_entries[static_cast<std::size_t>(i)].offset == offset)
            return i;
    }
    return -1;
}

int KnFieldData::getIndex(const KnFieldContainer* container, const KnField* field) const
{
    // Offsets only mean something within one object, so another node's field is ruled out first.
    if (!container || !field || field->getContainer() != container)
        return -1;
    const int own = container->ownIndex(field);
    return own >= 0 ? own : findOffset(offsetOf(container, field));
}

int KnFieldData::getIndex(const KbName& name) const
{
    for (int i = 0; i < getNum(); ++i) {
        if (getName(i) == name)
            return i;
    }
    return -1;
}

const KnField* KnFieldData::getField(const KnFieldContainer* container, int index) const
{
    if (!container || index < 0 || index >= getNum())
        return nullptr;
    const std::ptrdiff_t offset = m_entries[static_cast<std::size_t>(index)].offset;
    // No member lies where the node itself begins.
    if (offset == 0)
        return const_cast<KnFieldContainer*>(container)->ownField(index); // it may be made now
    return reinterpret_cast<const KnField*>(reinterpret_cast<const char*>(container) + offset);
}

KnField* KnFieldData::getField(KnFieldContainer* container, int index) const
{
    return const_cast<KnField*>(getField(static_cast<const KnFieldContainer*>(container), index));
}

int KnFieldData::addOwnField(const KbName& name)
{
    m_entries.push_back({ name, 0 });
    return getNum() - 1;
}
