// SPDX-License-Identifier: BSD-3-Clause
#include "KnFieldContainer.h"

#include "KnField.h"
#include "KnNode.h"

KnType KnFieldContainer::getClassTypeId()
{
    static const KnType type = KnType::create("FieldContainer", KnType());
    return type;
}

KnType KnNode::getClassTypeId()
{
    static const KnType type = KnType::create("Node", KnFieldContainer::getClassTypeId());
    return type;
}

KnFieldContainer::~KnFieldContainer() = default;

void KnFieldContainer::unref()
{
    if (--m_referenceCount <= 0)
        delete this; // the count is the owner
}

KnField* KnFieldContainer::getField(const KbName& name)
{
    const KnFieldData* data = getContainerFieldData();
    return data->getField(this, data->getIndex(name));
}

void KnFieldContainer::addField(KnFieldData& data, const char* name, KnField& field)
{
    field.m_container = this;
    const std::ptrdiff_t offset = KnFieldData::offsetOf(this, &field);
    if (data.findOffset(offset) < 0)
        data.m_entries.push_back({ name, offset });
}
