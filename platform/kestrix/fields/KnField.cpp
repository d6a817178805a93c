// SPDX-License-Identifier: BSD-3-Clause
#include "KnField.h"

#include "KnFieldOwner.h"
#include "KnFieldSensor.h"
#include "KnSensorQueue.h"
#include "KnWriteThread.h"

KnType KnField::getClassTypeId()
{
    static const KnType type = KnType::create("Field", KnType());
    return type;
}

KnField::KnField() = default;

KnField::~KnField()
{
    while (!m_sensors.empty()) {
        KnFieldSensor* const sensor = m_sensors.back();
        sensor->detach();
        sensor->fieldDestroyed();
    }
}

void KnField::setIgnored(int ignored)
{
    aboutToWrite();
    m_ignored = ignored != 0;
    callSensors();
}

void KnField::setReadOnly(bool readOnly)
{
    m_readOnly = readOnly;
    callSensors();
}

KnFieldContainer* KnField::getContainer() const
{
    return m_owner ? m_owner->asContainer() : nullptr;
}

void KnField::touch()
{
    written();
    callSensors();
}

void KnField::callSensors()
{
    KnWriteThread::check();
    for (KnFieldSensor* sensor : m_sensors)
        KnSensorQueue::getInstance().schedule(sensor);
}
