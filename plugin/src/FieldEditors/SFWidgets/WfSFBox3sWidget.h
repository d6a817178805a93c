// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "ComponentValidator.h"
#include "KnSFields.h"
#include "WfSFPopupWidget.h"

struct SFBox3sTraits {
    using Field = KnSFBox3s;
    static constexpr const char* typeName = "SFBox3s";
    static constexpr const char* className = "WfSFBox3sWidget";
    static constexpr int rows = 2;
    static constexpr int columns = 3;
    static constexpr int validatorKind = Int16Validator;
};

/// Edits a KnSFBox3s: the lowest corner in the first row of the grid, the highest in the second.
class WfSFBox3sWidget : public WfSFPopupWidget<SFBox3sTraits> {
    Q_OBJECT
public:
    using WfSFPopupWidget::applyChanges;
    using WfSFPopupWidget::WfSFPopupWidget;

public Q_SLOTS:
    // Repeated because a template can't make it a slot.
    void applyChanges() override { WfSFPopupWidget::applyChanges(); }
};
