// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "WfMFLineWidgetOf.h"

struct MFFloatTraits {
    using Field = KnMFFloat;
    static constexpr const char* typeName = "MFFloat";
    static constexpr const char* className = "WfMFFloatWidget";
    static constexpr int editorKind = FloatKind;
    static constexpr const char* defaultField = "floatField";
    static double rangeMin(const FieldRange& range) { return range.getFloatMin(); }
    static double rangeMax(const FieldRange& range) { return range.getFloatMax(); }
};

/// Edits a KnMFFloat with a slider in each cell.
class WfMFFloatWidget : public WfMFLineWidgetOf<MFFloatTraits> {
public:
    using WfMFLineWidgetOf::WfMFLineWidgetOf;
};
