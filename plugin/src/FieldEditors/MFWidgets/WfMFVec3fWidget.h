// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "WfMFVectorWidget.h"

struct MFVec3fTraits {
    using Field = KnMFVec3f;
    using ColorField = KnMFColor;
    static constexpr const char* typeName = "MFVec3f";
    static constexpr const char* className = "WfMFVec3fWidget";
    static constexpr int editorKind = FloatKind;
};

/// Edits a KnMFVec3f. The editor of KnMFColor builds on it.
class WfMFVec3fWidget : public WfMFVectorWidget<WfMFVec3fWidget, MFVec3fTraits> {
public:
    using WfMFVectorWidget::WfMFVectorWidget;

    /// Writes one component; it may refuse a value.
    virtual void setCellValue(float value, int row, int col)
    {
        WfMFVectorWidget::setCellValue(value, row, col);
    }
};
