// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "FieldRangeTable.h"
#include "WfRealSlider.h"
#include "WfSFNumericWidget.h"

/// The editors of single reals. The range depends on the field: bounded, 0 to 1, in the nodes whose
/// fields are ratios, free in all others. Beyond WfSFNumericWidget, `Traits` has
///   `Slider`: always WfRealSlider,
///   `defaultField`: the row for a field of any node,
///   `rangeMin(range)`, `rangeMax(range)`: the limits that a range has for the type,
///   `toValue(double)`: the slider's value as the field's.
template <class Traits>
class WfSFRealWidget : public WfSFNumericWidget<Traits> {
public:
    using WfSFNumericWidget<Traits>::WfSFNumericWidget;

    void attachField(KnField* field) override
    {
        this->takeSlider();
        this->m_fieldRange = FieldRangeTable().getForRealField(*field, Traits::defaultField);
        // The scale still stands where the previous field left it. If the new range moves it, that
        // is not a person's edit of either field.
        const WfSlider::OwnerHold hold(*this->m_slider);
        this->m_slider->setRange(Traits::rangeMin(this->m_fieldRange),
            Traits::rangeMax(this->m_fieldRange), this->m_fieldRange.isBounded());
        WfSFNumericWidget<Traits>::attachField(field);
    }

    void updateFromField() override
    {
        if (this->m_field) {
            const double value = this->field()->getValue();
            WfRealSlider& slider = *this->m_slider;
            // Even a bounded range widens to what the field already holds. That never moves the
            // scale.
            if (value > slider.getMaximum())
                slider.setRange(slider.getMinimum(), value, slider.isBounded());
            if (slider.getMinimum() > value)
                slider.setRange(value, slider.getMaximum(), slider.isBounded());
            slider.setValue(value);
        }
        WfSFNumericWidget<Traits>::updateFromField();
    }

    void applyChanges() override
    {
        const auto value = Traits::toValue(this->m_slider->getValue());
        this->executeEdit([this, value] { this->field()->setValue(value); });
    }
};
