// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnSFields.h"
#include "WfSFRealWidget.h"

struct SFFloatTraits {
    using Field = KnSFFloat;
    using Slider = WfRealSlider;
    static constexpr int sliderKind = WfSFieldWidget::FloatSlider;
    static constexpr const char* typeName = "SFFloat";
    static constexpr const char* className = "WfSFFloatWidget";
    static constexpr const char* defaultField = "floatField";
    static double rangeMin(const FieldRange& range) { return range.getFloatMin(); }
    static double rangeMax(const FieldRange& range) { return range.getFloatMax(); }
    static float toValue(double value) { return SliderMath::toFloat(value); }
};

/// Edits a KnSFFloat with a slider.
class WfSFFloatWidget : public WfSFRealWidget<SFFloatTraits> {
    Q_OBJECT
public:
    using WfSFRealWidget::WfSFRealWidget;
};
