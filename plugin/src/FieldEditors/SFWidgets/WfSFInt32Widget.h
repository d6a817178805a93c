// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnSFields.h"
#include "WfIntSlider.h"
#include "WfSFIntegerWidget.h"

struct SFInt32Traits {
    using Field = KnSFInt32;
    using Slider = WfIntSlider;
    static constexpr int sliderKind = WfSFieldWidget::Int32Slider;
    static constexpr const char* typeName = "SFInt32";
    static constexpr const char* className = "WfSFInt32Widget";
};

/// Edits a KnSFInt32 with a slider.
class WfSFInt32Widget : public WfSFIntegerWidget<SFInt32Traits> {
    Q_OBJECT
public:
    using WfSFIntegerWidget::WfSFIntegerWidget;
};
