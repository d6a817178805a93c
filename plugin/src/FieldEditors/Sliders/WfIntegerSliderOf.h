// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "WfSliderOf.h"

/// What the two integer sliders share: the base of their text, which the first text decides for
/// good, and the limits of the type, which a bounded range narrows for good. Beyond WfSliderOf the
/// concrete slider supplies
///   `Value typeBottom() const`, `Value typeTop() const`: the present limits of the type,
///   `void baseDetected()`: m_base has been decided,
///   `static int positionOf(Value)`, `static Value valueOf(int position)`.
template <class Self, class Value>
class WfIntegerSliderOf : public WfSliderOf<Self, Value> {
public:
    void setRange(Value min, Value max, bool bounded)
    {
        const Value bottom = self().typeBottom();
        const Value top = self().typeTop();
        this->takeRange(min < bottom ? bottom : min, max > top ? top : max, bounded);
    }

    void setValue(QString text) override
    {
        if (m_detectBase) {
            this->m_base = SliderMath::detectBase(text);
            self().baseDetected();
            m_detectBase = false;
        }
        this->takeText(SliderMath::withoutPrefix(text, this->m_base));
    }

    int bottomPosition() const { return Self::positionOf(this->m_minimum); }
    int topPosition() const { return Self::positionOf(this->m_maximum); }

protected:
    using WfSliderOf<Self, Value>::WfSliderOf;

    void updateEdit() override { this->setText(QString::number(this->m_value, this->m_base)); }

    void updateValueFromSlider(int position) override
    {
        this->m_sliderValue = position;
        this->m_value = Self::valueOf(position);
    }

    /// Takes a value that was typed or shown, and the position that belongs to it.
    void takeValue(Value value)
    {
        this->m_value = this->admitted(value);
        this->m_sliderValue = Self::positionOf(this->m_value);
    }

private:
    Self& self() { return static_cast<Self&>(*this); }

    bool m_detectBase = true;
};
