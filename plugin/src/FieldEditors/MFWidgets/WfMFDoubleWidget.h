// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "WfMFLineMember.h"

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
class WfMFDoubleWidget : public WfMFLineMember<MFDoubleTraits> {
public:
    using WfMFLineMember::WfMFLineMember;
};
