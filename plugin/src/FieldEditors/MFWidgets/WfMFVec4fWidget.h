// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "WfMFVectorWidget.h"

struct MFVec4fTraits {
    using Field = KnMFVec4f;
    using ColorField = KnMFColorRGBA;
    static constexpr const char* typeName = "MFVec4f";
    static constexpr const char* className = "WfMFVec4fWidget";
    static constexpr int editorKind = FloatKind;
};

/// Edits a KnMFVec4f. The editor of KnMFColorRGBA builds on it.
class WfMFVec4fWidget : public WfMFVectorWidget<WfMFVec4fWidget, MFVec4fTraits> {
public:
    using WfMFVectorWidget::WfMFVectorWidget;

    /// Writes one component; it may refuse a value.
    virtual void setCellValue(float value, int row, int col)
    {
        WfMFVectorWidget::setCellValue(value, row, col);
    }
};
