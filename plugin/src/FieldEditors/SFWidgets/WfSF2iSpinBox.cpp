// SPDX-License-Identifier: BSD-3-Clause
#include "WfSF2iSpinBox.h"

#include "FittedFont.h"
#include "NumberLocale.h"

#include <QFrame>
#include <QSignalBlocker>
#include <QSpinBox>

#include <limits>

namespace {

constexpr ColumnBoxStyle style { "SF2BoxHSpacing", "SF2BoxHMargin", "SF2BoxVSpacing",
    "SF2BoxLayout", "SF4flabel", "SF2Box" };

template <class Number>
void setFullRange(QSpinBox* box)
{
    box->setRange(std::numeric_limits<Number>::min(), std::numeric_limits<Number>::max());
}

} // namespace

WfSF2iSpinBox::WfSF2iSpinBox(const char* name)
    : WfSFColumnBox(2, style, name)
{
    if (!name)
        setObjectName(QStringLiteral("WfSF2iSpinBox"));
}

QWidget* WfSF2iSpinBox::makeInput(int height)
{
    auto* const box = new QSpinBox(m_editionFrame);
    box->setLocale(numberLocale());
    fitSpinBox(box, height);
    connect(box, &QSpinBox::valueChanged, this, &WfSF2iSpinBox::setCommandValue);
    m_boxes.push_back(box);
    return box;
}

void WfSF2iSpinBox::setSpinRange(int kind)
{
    for (QSpinBox* box : m_boxes) {
        if (kind == Int16Range)
            setFullRange<std::int16_t>(box);
        else if (kind == IntRange || kind == Int32Range)
            setFullRange<std::int32_t>(box);
    }
}

void WfSF2iSpinBox::showNumber(std::size_t column, int number)
{
    // A spin box reports every change of its value, but a refresh is not a person's edit.
    const QSignalBlocker blocker(m_boxes[column]);
    m_boxes[column]->setValue(number);
}

int WfSF2iSpinBox::number(std::size_t column) const { return m_boxes[column]->value(); }
