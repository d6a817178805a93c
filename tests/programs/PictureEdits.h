// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "InspectorInput.h"

#include <QStringList>

struct PictureResult {
    int changes = 0; // of the picture, by an edit
    QStringList faults;
};

/// Drags sliders of objects of the 3D scene, and looks at what the screen shows of it: it must
/// change, and be what it was after undo. Needs a screen whose windows have pictures.
PictureResult editPicture(InspectorInput& input);
