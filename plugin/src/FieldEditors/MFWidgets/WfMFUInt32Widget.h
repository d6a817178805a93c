// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "WfMFLineWidgetOf.h"

struct MFUInt32Traits {
    using Field = KnMFUInt32;
    static constexpr const char* typeName = "MFUInt32";
    static constexpr const char* className = "WfMFUInt32Widget";
    static constexpr int editorKind = UInt32Kind;
};

/// Edits a KnMFUInt32 with a slider in each cell.
class WfMFUInt32Widget : public WfMFLineWidgetOf<MFUInt32Traits> {
public:
    using WfMFLineWidgetOf::WfMFLineWidgetOf;
};
