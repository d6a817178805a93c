// SPDX-License-Identifier: BSD-3-Clause
#include "WfRealSlider.h"

#include "CrvStrings.h"
#include "NumberLimits.h"
#include "NumberLocale.h"
#include "RealValidator.h"

#include <QLineEdit>

namespace {

constexpr int doubleDecimals = 15;

} // namespace

WfRealSlider::WfRealSlider(
    int inTable, CrvFieldEditors* owner, QWidget* parent, bool isFloat, int row, int column)
    : WfSliderOf(inTable, owner, parent, row, column)
    , m_validator(new RealValidator(m_lineEdit))
    , m_isFloat(isFloat)
{
    const double limit = SliderMath::realLimit(isFloat);
    m_validator->setLocale(numberLocale());
    m_validator->setRange(-limit, limit, isFloat ? floatDecimals : doubleDecimals);
    m_lineEdit->setValidator(m_validator);
}

void WfRealSlider::setRange(double min, double max, bool bounded)
{
    if (!bounded) {
        // A field may get a free range behind one with a bounded range, whose limits then no longer
        // apply. The integer sliders have one range for all fields, which only ever narrows.
        const double limit = SliderMath::realLimit(m_isFloat);
        limitType(-limit, limit);
    }
    takeRange(min, max, bounded);
}

void WfRealSlider::setValue(double value) { takeText(SliderMath::realText(value, m_isFloat)); }

void WfRealSlider::limitType(double min, double max)
{
    m_validator->setBottom(min);
    m_validator->setTop(max);
}

int WfRealSlider::topPosition() const
{
    // A free range always has the full scale, since its maximum is set before its minimum and the
    // two may be equal in between.
    return isBounded() && !(m_maximum > m_minimum) ? 0 : SliderMath::realScaleTop;
}

void WfRealSlider::updateEdit() { setText(valueText()); }

void WfRealSlider::updateValueFromEdit()
{
    m_value = admitted(SliderMath::realFromText(m_lineEdit->text(), m_isFloat));
    m_sliderValue = SliderMath::realPosition(m_value, SliderMath::finite(m_minimum, m_isFloat),
        SliderMath::finite(m_maximum, m_isFloat));
}

void WfRealSlider::updateValueFromSlider(int position)
{
    m_sliderValue = position;
    m_value = SliderMath::realValue(position, SliderMath::finite(m_minimum, m_isFloat),
        SliderMath::finite(m_maximum, m_isFloat));
}

void WfRealSlider::saveOldValue() { m_oldValue = toKbString(valueText()); }
