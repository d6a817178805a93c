// SPDX-License-Identifier: BSD-3-Clause
#include "WfIntSlider.h"

#include "CrvStrings.h"
#include "NumberLocale.h"

#include <QIntValidator>
#include <QLineEdit>

#include <cstdint>
#include <limits>

WfIntSlider::WfIntSlider(
    int kind, int inTable, CrvFieldEditors* owner, QWidget* parent, int row, int column)
    : WfIntegerSliderOf(inTable, owner, parent, row, column)
    , m_validator(new QIntValidator(m_lineEdit))
{
    m_validator->setLocale(numberLocale());
    if (kind == Int16) {
        m_validator->setRange(
            std::numeric_limits<std::int16_t>::min(), std::numeric_limits<std::int16_t>::max());
    }
}

int WfIntSlider::typeBottom() const { return m_validator->bottom(); }

int WfIntSlider::typeTop() const { return m_validator->top(); }

void WfIntSlider::limitType(int min, int max) { m_validator->setRange(min, max); }

void WfIntSlider::baseDetected()
{
    if (m_base == 10)
        m_lineEdit->setValidator(m_validator);
}

void WfIntSlider::updateValueFromEdit()
{
    bool reads = false;
    const int value = m_lineEdit->text().toInt(&reads, m_base);
    // Only decimal texts have a validator; the others are limited here.
    const bool limit = reads && m_base != 10;
    takeValue(limit ? SliderMath::limited(value, typeBottom(), typeTop()) : value);
}

void WfIntSlider::saveOldValue() { m_oldValue = toKbString(QString::number(m_value, m_base)); }
