// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "WfMFLineWidgetOf.h"

struct MFUShortTraits {
    using Field = KnMFUShort;
    static constexpr const char* typeName = "MFUShort";
    static constexpr const char* className = "WfMFUShortWidget";
    static constexpr int editorKind = UInt16Kind;
};

/// Edits a KnMFUShort with a slider in each cell.
class WfMFUShortWidget : public WfMFLineWidgetOf<MFUShortTraits> {
public:
    using WfMFLineWidgetOf::WfMFLineWidgetOf;
};
