// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "WfMFVectorWidget.h"

struct MFRotationTraits {
    using Field = KnMFRotation;
    static constexpr const char* typeName = "MFRotation";
    static constexpr const char* className = "WfMFRotationWidget";
    static constexpr int editorKind = FloatKind;
};

/// Edits a KnMFRotation, as quaternions; the last column holds the w, whatever its header says.
class WfMFRotationWidget : public WfMFVectorWidget<WfMFRotationWidget, MFRotationTraits> {
public:
    using WfMFVectorWidget::WfMFVectorWidget;
};
