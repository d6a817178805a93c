// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnSFields.h"
#include "WfSFColorEditor.h"

struct SFColorRGBATraits {
    using Field = KnSFColorRGBA;
    static constexpr const char* typeName = "SFColorRGBA";
    static constexpr const char* className = "WfSFColorRGBAWidget";
    static constexpr ColorBoxStyle style { "RGBA", "SFColorRGBAInterSpacing", "SFColorRGBALayout",
        "SFColorRGBALabel", "SFColorRGBALine", QColorDialog::ShowAlphaChannel };
};

/// Edits a KnSFColorRGBA: red, green, blue and alpha.
class WfSFColorRGBAWidget : public WfSFColorEditor<SFColorRGBATraits> {
    Q_OBJECT
public:
    using WfSFColorEditor::WfSFColorEditor;

    void load() override;

protected Q_SLOTS:
    void changeRValue(const QString& str) { changeChannel(0, str); }
    void changeGValue(const QString& str) { changeChannel(1, str); }
    void changeBValue(const QString& str) { changeChannel(2, str); }
    void changeAValue(const QString& str) { changeChannel(3, str); }
    void getColorEditor() { chooseColor(); }
};
