// SPDX-License-Identifier: BSD-3-Clause
#include "KnMField.h"

#include "KnFieldSensor.h"

KnType KnMField::getClassTypeId()
{
    static const KnType type = KnType::create("MField", KnField::getClassTypeId());
    return type;
}

void KnMField::valueChanged(int, int, int) { touch(); }

void KnMField::reportRows(int start, int removed, int inserted)
{
    for (KnFieldSensor* sensor : m_sensors)
        sensor->rowsReplaced(start, removed, inserted);
}

std::unique_ptr<KnRows> KnMField::keepRows(int start, int num, KnFieldRecorder::Writing writing)
{
    KnFieldRecorder* const recorder = KnFieldRecorder::current();
    if (!recorder)
        return nullptr;
    recorder->aboutToWrite(*this);
    return recorder->keepsRows(*this, num, writing) ? copyRows(start, num) : nullptr;
}

void KnMField::recordRows(int start, int removed, int inserted, std::unique_ptr<KnRows> former,
    KnFieldRecorder::Writing writing)
{
    if (KnFieldRecorder* const recorder = KnFieldRecorder::current())
        recorder->rowsReplaced(*this, start, removed, inserted, std::move(former), writing);
}
