// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "WfMFColorEditor.h"
#include "WfMFVec4fWidget.h"

struct MFColorRGBATraits {
    using Field = KnMFColorRGBA;
    static constexpr const char* typeName = "MFColorRGBA";
    static constexpr const char* className = "WfMFColorRGBAWidget";
    static constexpr const char* channels = "RGBA";
};

/// Edits a KnMFColorRGBA: red, green, blue and alpha.
class WfMFColorRGBAWidget : public WfMFColorEditor<MFColorRGBATraits, WfMFVec4fWidget> {
public:
    using WfMFColorEditor::WfMFColorEditor;
};
