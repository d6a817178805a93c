// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "WfMFVectorWidget.h"

struct MFVec2sTraits {
    using Field = KnMFVec2s;
    static constexpr const char* typeName = "MFVec2s";
    static constexpr const char* className = "WfMFVec2sWidget";
    static constexpr int editorKind = PlainTextKind;
};

/// Edits a KnMFVec2s. Its cells take any text; one that isn't a 16-bit number counts as 0.
class WfMFVec2sWidget : public WfMFVectorWidget<WfMFVec2sWidget, MFVec2sTraits> {
public:
    using WfMFVectorWidget::WfMFVectorWidget;
};
