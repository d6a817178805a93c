// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "FieldRow.h"
#include "WfMFTextWidget.h"

struct MFDefaultFieldTraits {
    static constexpr const char* typeName = "MField";
    static constexpr const char* className = "WfMFDefaultFieldWidget";
    static KnType fieldType() { return KnMField::getClassTypeId(); }

    static KbString read(KnMField& field, int row)
    {
        KbString text;
        field.get1(row, text);
        return text;
    }
    static void write(KnMField& field, int row, const KbString& text) { field.set1(row, text); }
    static void swap(KnMField& field, int row1, int row2) { swapRowTexts(&field, row1, row2); }
};

/// Edits any array that has no editor of its own, each row in the kernel's text form.
class WfMFDefaultFieldWidget : public WfMFTextWidget<MFDefaultFieldTraits> {
public:
    using WfMFTextWidget::WfMFTextWidget;
};
