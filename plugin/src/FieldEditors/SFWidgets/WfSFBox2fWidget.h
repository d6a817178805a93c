// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "ComponentValidator.h"
#include "KnSFields.h"
#include "WfSFPopupWidget.h"

struct SFBox2fTraits {
    using Field = KnSFBox2f;
    static constexpr const char* typeName = "SFBox2f";
    static constexpr const char* className = "WfSFBox2fWidget";
    static constexpr int rows = 2;
    static constexpr int columns = 2;
    static constexpr int validatorKind = FloatValidator;
};

/// Edits a KnSFBox2f: the lowest corner in the first row of the grid, the highest in the second.
class WfSFBox2fWidget : public WfSFPopupWidget<SFBox2fTraits> {
    Q_OBJECT
public:
    using WfSFPopupWidget::applyChanges;
    using WfSFPopupWidget::WfSFPopupWidget;

public Q_SLOTS:
    // Repeated because a template can't make it a slot.
    void applyChanges() override { WfSFPopupWidget::applyChanges(); }
};
