// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnSFields.h"
#include "WfSFTextWidget.h"

/// Reads and writes the value of a KnSFString and of the fields derived from it.
struct StringFieldAccess {
    static KbString read(const KnField& field)
    {
        return static_cast<const KnSFString&>(field).getValue();
    }
    static void write(KnField& field, const KbString& text)
    {
        static_cast<KnSFString&>(field).setValue(text);
    }
};

struct SFStringTraits : StringFieldAccess {
    static constexpr const char* typeName = "SFString";
    static constexpr const char* className = "WfSFStringWidget";
    static KnType fieldType() { return KnSFString::getClassTypeId(); }
};

/// Edits a KnSFString in one line.
class WfSFStringWidget : public WfSFTextWidget<SFStringTraits> {
    Q_OBJECT
public:
    using WfSFTextWidget::WfSFTextWidget;
};
