// SPDX-License-Identifier: BSD-3-Clause
#include "KnFieldContainer.h"

#include "KnField.h"
#include "KnNameSensor.h"

KnType KnFieldContainer::getClassTypeId()
{
    static const KnType type = KnType::create("FieldContainer", KnType());
    return type;
}

KnFieldContainer::~KnFieldContainer() = default;

void KnFieldContainer::unref()
{
    if (--m_referenceCount <= 0)
        delete this; // the references own the node
}

void KnFieldContainer::setName(const KbName& name)
{
    if (name == m_name)
        return;
    m_name = name;
    renamed();
    KnNameSensor::report(*this);
}

KnField* KnFieldContainer::getField(const KbName& name)
{
    const KnFieldData* data = getContainerFieldData();
    return data->getField(this, data->getIndex(name));
}

std::string KnFieldContainer::describeField(const KnField& field) const
{
    const KnFieldData* data = getContainerFieldData();
    const int index = data ? data->getIndex(this, &field) : -1;
    if (index < 0)
        return {};
    std::string text = getObjectType().getName().getString().toUtf8();
    if (!m_name.isEmpty())
        text += " \"" + m_name.getString().toUtf8() + '"';
    return text + ", field " + data->getName(index).getString().toUtf8();
}

void KnFieldContainer::addField(
    KnFieldData& data, const char* name, KnField& field, const KnFieldInfo& info)
{
    adopt(field);
    const std::ptrdiff_t offset = KnFieldData::offsetOf(this, &field);
    if (data.findOffset(offset) < 0)
        data.m_entries.push_back({ name, offset, info });
}

KnField* KnFieldContainer::ownField(int) { return nullptr; }

int KnFieldContainer::ownIndex(const KnField*) const { return -1; }
