// SPDX-License-Identifier: BSD-3-Clause
#include "FieldRange.h"

void FieldRange::setFloatRange(float min, float max)
{
    m_floatMin = min;
    m_floatMax = max;
}

void FieldRange::setDoubleRange(double min, double max)
{
    m_doubleMin = static_cast<float>(min);
    m_doubleMax = static_cast<float>(max);
}

void FieldRange::setIntRange(int min, int max)
{
    m_intMin = min;
    m_intMax = max;
}
