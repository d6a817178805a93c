// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnSFields.h"
#include "WfSFRealWidget.h"

struct SFDoubleTraits {
    using Field = KnSFDouble;
    using Slider = WfRealSlider;
    static constexpr int sliderKind = WfSFieldWidget::DoubleSlider;
    static constexpr const char* typeName = "SFDouble";
    static constexpr const char* className = "WfSFDoubleWidget";
    static constexpr const char* defaultField = "doubleField";
    static double rangeMin(const FieldRange& range) { return range.getDoubleMin(); }
    static double rangeMax(const FieldRange& range) { return range.getDoubleMax(); }
    static double toValue(double value) { return value; }
};

/// Edits a KnSFDouble with a slider.
class WfSFDoubleWidget : public WfSFRealWidget<SFDoubleTraits> {
    Q_OBJECT
public:
    using WfSFRealWidget::WfSFRealWidget;
};
