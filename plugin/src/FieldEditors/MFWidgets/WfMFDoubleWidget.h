// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "WfMFLineWidgetOf.h"

struct MFDoubleTraits {
    using Field = KnMFDouble;
    static constexpr const char* typeName = "MFDouble";
    static constexpr const char* className = "WfMFDoubleWidget";
    static constexpr int editorKind = DoubleKind;
    static constexpr const char* defaultField = "doubleField";
    static double rangeMin(const FieldRange& range) { return range.getDoubleMin(); }
    static double rangeMax(const FieldRange& range) { return range.getDoubleMax(); }
};

/// Edits a KnMFDouble with a line in each cell.
class WfMFDoubleWidget : public WfMFLineWidgetOf<MFDoubleTraits> {
public:
    using WfMFLineWidgetOf::WfMFLineWidgetOf;
};
