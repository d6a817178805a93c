// SPDX-License-Identifier: BSD-3-Clause
#include "WfUIntSlider.h"

#include "CrvStrings.h"

#include <QLineEdit>

#include <cstdint>
#include <limits>

WfUIntSlider::WfUIntSlider(
    int kind, int inTable, CrvFieldEditors* owner, QWidget* parent, int row, int column)
    : WfIntegerSliderOf(inTable, owner, parent, row, column)
    , m_top(kind == UInt16 ? std::numeric_limits<std::uint16_t>::max()
                           : std::numeric_limits<std::uint32_t>::max())
{
}

void WfUIntSlider::limitType(unsigned int min, unsigned int max)
{
    m_bottom = min;
    m_top = max;
}

void WfUIntSlider::updateValueFromEdit()
{
    bool reads = false;
    const unsigned int value = m_lineEdit->text().toUInt(&reads, m_base);
    if (reads)
        takeValue(SliderMath::limited(value, m_bottom, m_top));
}

void WfUIntSlider::saveOldValue()
{
    // The line may still show a text that was refused or clamped. Undo must bring back the value,
    // not that text.
    bool reads = false;
    const bool showsValue = m_lineEdit->text().toUInt(&reads, m_base) == m_value && reads;
    m_oldValue = toKbString(
        showsValue ? getText() : SliderMath::withPrefix(QString::number(m_value, m_base), m_base));
}
