// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnSFields.h"
#include "WfSFLineBox.h"
#include "WfSFVectorWidget.h"

struct SFVec3fTraits {
    using Field = KnSFVec3f;
    static constexpr const char* typeName = "SFVec3f";
    static constexpr const char* className = "WfSFVec3fWidget";
    static constexpr ColumnBoxStyle style { "SF3fBoxHSpacing", "SF3fBoxHMargin", "SF3fBoxVSpacing",
        "SFVec3fLayout", "SFVec3fLabel", "SFVec3fLine" };
};

/// Edits a KnSFVec3f with three lines.
class WfSFVec3fWidget : public WfSFVectorWidget<SFVec3fTraits, WfSFLineBox> {
    Q_OBJECT
public:
    explicit WfSFVec3fWidget(const char* name = nullptr)
        : WfSFVectorWidget(name, 3, SFVec3fTraits::style, Qt::AlignLeft)
    {
    }
};
