// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnSFields.h"
#include "WfSFLineBox.h"
#include "WfSFVectorWidget.h"

struct SFVec2fTraits {
    using Field = KnSFVec2f;
    static constexpr const char* typeName = "SFVec2f";
    static constexpr const char* className = "WfSFVec2fWidget";
    static constexpr ColumnBoxStyle style { "SF2BoxHSpacing", "SF2BoxHMargin", "SF2BoxVSpacing",
        "SFVec2fLayout", "SFVec2fLabel", "SFVec2fBox" };
};

/// Edits a KnSFVec2f with two lines.
class WfSFVec2fWidget : public WfSFVectorWidget<SFVec2fTraits, WfSFLineBox> {
    Q_OBJECT
public:
    explicit WfSFVec2fWidget(const char* name = nullptr)
        : WfSFVectorWidget(name, 2, SFVec2fTraits::style, Qt::AlignLeft | Qt::AlignVCenter)
    {
    }
};
