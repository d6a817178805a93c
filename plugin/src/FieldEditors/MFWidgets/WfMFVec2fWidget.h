// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "WfMFVectorWidget.h"

struct MFVec2fTraits {
    using Field = KnMFVec2f;
    static constexpr const char* typeName = "MFVec2f";
    static constexpr const char* className = "WfMFVec2fWidget";
    static constexpr int editorKind = FloatKind;
};

/// Edits a KnMFVec2f.
class WfMFVec2fWidget : public WfMFVectorWidget<WfMFVec2fWidget, MFVec2fTraits> {
public:
    using WfMFVectorWidget::WfMFVectorWidget;
};
