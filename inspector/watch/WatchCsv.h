// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

#include <vector>

class WatchedValue;

/// All that is stored as comma-separated values: a line of names, then one for each time at which
/// anything was sampled, with seconds since the first sample. A cell is empty where its value is
/// still the one above. Numbers have a point, whatever the locale.
QString watchCsv(const std::vector<const WatchedValue*>& values);
