// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "WfMFColorEditor.h"
#include "WfMFVec3fWidget.h"

struct MFColorTraits {
    using Field = KnMFColor;
    static constexpr const char* typeName = "MFColor";
    static constexpr const char* className = "WfMFColorWidget";
    static constexpr const char* channels = "RGB";
};

/// Edits a KnMFColor: red, green and blue.
class WfMFColorWidget : public WfMFColorEditor<MFColorTraits, WfMFVec3fWidget> {
public:
    using WfMFColorEditor::WfMFColorEditor;
};
