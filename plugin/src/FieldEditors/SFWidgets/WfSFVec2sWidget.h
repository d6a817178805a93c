// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnSFields.h"
#include "WfSF2iSpinBox.h"
#include "WfSFVectorWidget.h"

struct SFVec2sTraits {
    using Field = KnSFVec2s;
    static constexpr const char* typeName = "SFVec2s";
    static constexpr const char* className = "WfSFVec2sWidget";
};

/// Edits a KnSFVec2s with two spin boxes.
class WfSFVec2sWidget : public WfSFVectorWidget<SFVec2sTraits, WfSF2iSpinBox> {
public:
    using WfSFVectorWidget::WfSFVectorWidget;

    void load() override
    {
        WfSFVectorWidget::load();
        setSpinRange(Int16Range);
    }
};
