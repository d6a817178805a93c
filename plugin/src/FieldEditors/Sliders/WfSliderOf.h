// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "SliderMath.h"
#include "WfSlider.h"

#include <QSlider>

/// What the sliders of all number types share: value, range, and how a range holds or grows. The
/// virtual functions of WfSlider know no type of value, so a concrete slider gives itself as `Self`
/// and supplies
///   `void limitType(Value min, Value max)`: a bounded range limits what may be typed,
///   `int bottomPosition() const`, `int topPosition() const`: the ends of the scale.
template <class Self, class Value>
class WfSliderOf : public WfSlider {
public:
    Value getValue() const { return m_value; }
    Value getMinimum() const { return m_minimum; }
    Value getMaximum() const { return m_maximum; }
    bool isBounded() const { return m_bounded; }

protected:
    using WfSlider::WfSlider;

    /// Takes a range as it is. The value only changes if the new range moves the scale.
    void takeRange(Value min, Value max, bool bounded)
    {
        m_bounded = bounded;
        if (!bounded) {
            setMaximum(max);
            setMinimum(min);
            return;
        }
        m_minimum = min;
        m_maximum = max;
        self().limitType(min, max);
        m_slider->setRange(self().bottomPosition(), self().topPosition());
    }

    /// `value` as the range admits it: a bounded range clamps it, a free one grows to include it.
    Value admitted(Value value)
    {
        if (m_bounded)
            return SliderMath::limited(value, m_minimum, m_maximum);
        if (value > m_maximum)
            setMaximum(value);
        if (value < m_minimum)
            setMinimum(value);
        return value;
    }

    Value m_minimum {};
    Value m_maximum {};
    Value m_value {};

private:
    Self& self() { return static_cast<Self&>(*this); }

    void setMaximum(Value value)
    {
        if (m_bounded)
            return;
        m_maximum = value;
        m_slider->setMaximum(self().topPosition());
    }

    void setMinimum(Value value)
    {
        if (m_bounded)
            return;
        m_minimum = value;
        m_slider->setMinimum(self().bottomPosition());
    }

    bool m_bounded = false;
};
