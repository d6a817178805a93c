// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "WfMFVectorWidget.h"

struct MFPlaneTraits {
    using Field = KnMFPlane;
    static constexpr const char* typeName = "MFPlane";
    static constexpr const char* className = "WfMFPlaneWidget";
    static constexpr int editorKind = FloatKind;
};

/// Edits a KnMFPlane: normal and distance.
class WfMFPlaneWidget : public WfMFVectorWidget<WfMFPlaneWidget, MFPlaneTraits> {
public:
    using WfMFVectorWidget::WfMFVectorWidget;
};
