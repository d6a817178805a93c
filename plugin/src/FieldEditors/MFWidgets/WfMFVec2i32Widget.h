// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "WfMFVectorWidget.h"

struct MFVec2i32Traits {
    using Field = KnMFVec2i32;
    static constexpr const char* typeName = "MFVec2i32";
    static constexpr const char* className = "WfMFVec2i32Widget";
    static constexpr int editorKind = Int32Kind;
};

/// Edits a KnMFVec2i32.
class WfMFVec2i32Widget : public WfMFVectorWidget<WfMFVec2i32Widget, MFVec2i32Traits> {
public:
    using WfMFVectorWidget::WfMFVectorWidget;
};
