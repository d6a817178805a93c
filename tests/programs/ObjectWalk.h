// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "InspectorInput.h"

#include <QStringList>

/// What a walk through the whole tree has come across.
struct WalkResult {
    int objects = 0;
    int classes = 0;
    int fields = 0; // that were clicked
    int editors = 0; // of which had one
    QStringList faults;
};

/// Goes down the tree by keys, opens every branch, and selects every object in it. The list of each
/// is paged to its end, and each property is clicked once for the class that declares it.
WalkResult walkThroughObjects(InspectorInput& input);
