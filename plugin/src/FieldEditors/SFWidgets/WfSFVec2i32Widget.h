// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnSFields.h"
#include "WfSF2iSpinBox.h"
#include "WfSFVectorWidget.h"

struct SFVec2i32Traits {
    using Field = KnSFVec2i32;
    static constexpr const char* typeName = "SFVec2i32";
    static constexpr const char* className = "WfSFVec2i32Widget";
};

/// Edits a KnSFVec2i32 with two spin boxes.
class WfSFVec2i32Widget : public WfSFVectorWidget<SFVec2i32Traits, WfSF2iSpinBox> {
public:
    using WfSFVectorWidget::WfSFVectorWidget;

    void load() override
    {
        WfSFVectorWidget::load();
        setSpinRange(Int32Range);
    }
};
