// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "ComponentValidator.h"
#include "KnSFields.h"
#include "WfSFPopupWidget.h"

struct SFMatrixTraits {
    using Field = KnSFMatrix;
    static constexpr const char* typeName = "SFMatrix";
    static constexpr const char* className = "WfSFMatrixWidget";
    static constexpr int rows = 4;
    static constexpr int columns = 4;
    static constexpr int validatorKind = FloatValidator;
};

/// Edits a KnSFMatrix, one element in each cell of the grid.
class WfSFMatrixWidget : public WfSFPopupWidget<SFMatrixTraits> {
public:
    using WfSFPopupWidget::WfSFPopupWidget;
};
