// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnSFields.h"
#include "WfSFTextWidget.h"

struct SFNameTraits {
    static constexpr const char* typeName = "SFName";
    static constexpr const char* className = "WfSFNameWidget";
    static KnType fieldType() { return KnSFName::getClassTypeId(); }
    static KbString read(const KnField& field)
    {
        return static_cast<const KnSFName&>(field).getValue().getString();
    }
    static void write(KnField& field, const KbString& text)
    {
        static_cast<KnSFName&>(field).setValue(KbName(text));
    }
};

/// Edits a KnSFName in one line.
class WfSFNameWidget : public WfSFTextWidget<SFNameTraits> {
    Q_OBJECT
public:
    using WfSFTextWidget::WfSFTextWidget;
};
