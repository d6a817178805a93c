// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnSFields.h"
#include "WfSFIntegerWidget.h"
#include "WfUIntSlider.h"

struct SFUInt32Traits {
    using Field = KnSFUInt32;
    using Slider = WfUIntSlider;
    static constexpr int sliderKind = WfSFieldWidget::UInt32Slider;
    static constexpr const char* typeName = "SFUInt32";
    static constexpr const char* className = "WfSFUInt32Widget";
};

/// Edits a KnSFUInt32 with a slider.
class WfSFUInt32Widget : public WfSFIntegerWidget<SFUInt32Traits> {
    Q_OBJECT
public:
    using WfSFIntegerWidget::WfSFIntegerWidget;
};
