// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "WfMFLineWidgetOf.h"

struct MFInt32Traits {
    using Field = KnMFInt32;
    static constexpr const char* typeName = "MFInt32";
    static constexpr const char* className = "WfMFInt32Widget";
    static constexpr int editorKind = Int32Kind;
};

/// Edits a KnMFInt32 with a slider in each cell.
class WfMFInt32Widget : public WfMFLineWidgetOf<MFInt32Traits> {
public:
    using WfMFLineWidgetOf::WfMFLineWidgetOf;
};
