// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "InspectorInput.h"

/// Changes a form that designer shows, and draws the program's window with the inspector's beside
/// it into a file. False, with a line on the standard error stream, if that can't be done.
bool drawEditedForm(InspectorInput& input, const QString& file);
