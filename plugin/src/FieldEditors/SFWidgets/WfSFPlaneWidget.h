// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnSFields.h"
#include "WfSF4fBox.h"
#include "WfSFVectorWidget.h"

struct SFPlaneTraits {
    using Field = KnSFPlane;
    static constexpr const char* typeName = "SFPlane";
    static constexpr const char* className = "WfSFPlaneWidget";
};

/// Edits a KnSFPlane with four lines: the normal, and the distance from the origin.
class WfSFPlaneWidget : public WfSFVectorWidget<SFPlaneTraits, WfSF4fBox> {
public:
    using WfSFVectorWidget::WfSFVectorWidget;
};
