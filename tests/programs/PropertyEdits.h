// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "InspectorInput.h"

#include <QStringList>

struct EditResult {
    int objects = 0;
    int edited = 0; // properties that an edit changed, and that undo and redo gave back
    QStringList notes;
    QStringList faults;
};

/// Edits every writable property of an object of each safe class that the program has, by the
/// editor's own widgets; then undo, redo and undo, with a look at the property after each.
EditResult editSafeProperties(InspectorInput& input);
