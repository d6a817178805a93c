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
    return findOffset(offsetOf(container, field));
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
    return reinterpret_cast<const KnField*>(reinterpret_cast<const char*>(container)
        + m_entries[static_cast<std::size_t>(index)].offset);
}

KnField* KnFieldData::getField(KnFieldContainer* container, int index) const
{
    return const_cast<KnField*>(getField(static_cast<const KnFieldContainer*>(container), index));
}
