// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvMFSwapRowsCommand.h"
#include "WfMFDefaultFieldWidget.h"

struct MFStringTraits {
    static constexpr const char* typeName = "MFString";
    static constexpr const char* className = "WfMFStringWidget";
    static KnType fieldType() { return KnMFString::getClassTypeId(); }

    static KbString read(KnMField& field, int row)
    {
        return isString(field) ? static_cast<KnMFString&>(field)[row]
                               : MFDefaultFieldTraits::read(field, row);
    }
    static void write(KnMField& field, int row, const KbString& text)
    {
        if (isString(field))
            static_cast<KnMFString&>(field).set1Value(row, text);
        else
            MFDefaultFieldTraits::write(field, row, text);
    }
    static void swap(KnMField& field, int row1, int row2)
    {
        CrvServices::getInstance()->executeCommand(new CrvMFSwapRowsCommand(&field, row1, row2));
    }

private:
    static bool isString(const KnMField& field) { return field.isOfType(fieldType()); }
};

/// Edits a KnMFString. It shows the strings themselves, not their quoted text form.
class WfMFStringWidget : public WfMFTextWidget<MFStringTraits> {
public:
    using WfMFTextWidget::WfMFTextWidget;
};
