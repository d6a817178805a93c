// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnSFields.h"
#include "WfSFColorEditor.h"

struct SFColorTraits {
    using Field = KnSFColor;
    static constexpr const char* typeName = "SFColor";
    static constexpr const char* className = "WfSFColorWidget";
    static constexpr ColorBoxStyle style { "RGB", "SFColorInterSpacing", "SFColorLayout",
        "SFColorLabel", "SFColorLine", {} };
};

/// Edits a KnSFColor: red, green and blue.
class WfSFColorWidget : public WfSFColorEditor<SFColorTraits> {
    Q_OBJECT
public:
    using WfSFColorEditor::WfSFColorEditor;

    void load() override;

protected Q_SLOTS:
    void changeRValue(const QString& str) { changeChannel(0, str); }
    void changeGValue(const QString& str) { changeChannel(1, str); }
    void changeBValue(const QString& str) { changeChannel(2, str); }
    void getColorEditor() { chooseColor(); }
};
