// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnSFields.h"
#include "WfSF4fBox.h"
#include "WfSFVectorWidget.h"

struct SFVec4fTraits {
    using Field = KnSFVec4f;
    static constexpr const char* typeName = "SFVec4f";
    static constexpr const char* className = "WfSFVec4fWidget";
};

/// Edits a KnSFVec4f with four lines.
class WfSFVec4fWidget : public WfSFVectorWidget<SFVec4fTraits, WfSF4fBox> {
public:
    using WfSFVectorWidget::WfSFVectorWidget;
};
