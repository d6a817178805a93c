// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvStrings.h"
#include "FieldRangeTable.h"
#include "WfSFNumericWidget.h"

/// The editors of single whole numbers. Values pass between slider and field as text, so that the
/// slider shows the base of the field's text form. The range is set only once: when it has grown
/// for one field, it stays so for the next.
template <class Traits>
class WfSFIntegerWidget : public WfSFNumericWidget<Traits> {
public:
    using WfSFNumericWidget<Traits>::WfSFNumericWidget;

    void load() override
    {
        WfSFNumericWidget<Traits>::load();
        this->m_fieldRange = FieldRangeTable().get("DefaultNode", "intField");
        this->takeSlider();
        this->m_slider->setRange(this->m_fieldRange.getIntMin(), this->m_fieldRange.getIntMax(),
            this->m_fieldRange.isBounded());
    }

    void updateFromField() override
    {
        if (this->m_field) {
            KbString text;
            this->m_field->get(text);
            this->m_slider->setValue(toQString(text));
        }
        WfSFNumericWidget<Traits>::updateFromField();
    }

    void applyChanges() override
    {
        const QString text = QString::number(this->m_slider->getValue(), 10);
        this->executeEdit([this, &text] { this->m_field->set(toKbString(text)); });
    }
};
