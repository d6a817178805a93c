// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnSFields.h"
#include "WfSFIntegerWidget.h"
#include "WfUIntSlider.h"

struct SFUShortTraits {
    using Field = KnSFUShort;
    using Slider = WfUIntSlider;
    static constexpr int sliderKind = WfSFieldWidget::UInt16Slider;
    static constexpr const char* typeName = "SFUShort";
    static constexpr const char* className = "WfSFUShortWidget";
};

/// Edits a KnSFUShort with a slider.
class WfSFUShortWidget : public WfSFIntegerWidget<SFUShortTraits> {
    Q_OBJECT
public:
    using WfSFIntegerWidget::WfSFIntegerWidget;
};
