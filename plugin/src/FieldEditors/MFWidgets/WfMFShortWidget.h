// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "WfMFLineWidgetOf.h"

struct MFShortTraits {
    using Field = KnMFShort;
    static constexpr const char* typeName = "MFShort";
    static constexpr const char* className = "WfMFShortWidget";
    static constexpr int editorKind = Int16Kind;
};

/// Edits a KnMFShort with a slider in each cell.
class WfMFShortWidget : public WfMFLineWidgetOf<MFShortTraits> {
public:
    using WfMFLineWidgetOf::WfMFLineWidgetOf;
};
