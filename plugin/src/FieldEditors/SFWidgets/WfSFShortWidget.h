// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnSFields.h"
#include "WfIntSlider.h"
#include "WfSFIntegerWidget.h"

struct SFShortTraits {
    using Field = KnSFShort;
    using Slider = WfIntSlider;
    static constexpr int sliderKind = WfSFieldWidget::Int16Slider;
    static constexpr const char* typeName = "SFShort";
    static constexpr const char* className = "WfSFShortWidget";
};

/// Edits a KnSFShort with a slider.
class WfSFShortWidget : public WfSFIntegerWidget<SFShortTraits> {
    Q_OBJECT
public:
    using WfSFIntegerWidget::WfSFIntegerWidget;
};
