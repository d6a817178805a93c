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
