// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

#include <cstdint>

/// One row of the metrics: a name and its value, in pixels unless the table says otherwise.
struct LayoutMetric {
    const char* name; ///< Latin-1; null in the row that ends the table
    std::int32_t value;
};

/// All sizes, margins and spacings of the field widgets.
extern const LayoutMetric LayoutMetrics[];

/// The value of that name, which is case-sensitive; 0 for a name that isn't there. User interface
/// thread only.
int layoutMetric(const QString& name);
