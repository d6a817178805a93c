// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnSFields.h"
#include "WfSF4fBox.h"
#include "WfSFVectorWidget.h"

struct SFRotationTraits {
    using Field = KnSFRotation;
    static constexpr const char* typeName = "SFRotation";
    static constexpr const char* className = "WfSFRotationWidget";
};

/// Edits a KnSFRotation with four lines: the axis, and the angle in radians. Only Return applies,
/// since a half-typed axis makes no sense.
class WfSFRotationWidget : public WfSFVectorWidget<SFRotationTraits, WfSF4fBox> {
    Q_OBJECT
public:
    using WfSFVectorWidget::WfSFVectorWidget;

    void load() override;
};
