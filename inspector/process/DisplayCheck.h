// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

/// Whether a window can be opened, which the toolkit itself only finds out by ending the process:
/// whether a display answers that its platform plug-in could use. `platform` is named as in
/// QT_QPA_PLATFORM, empty for the toolkit's own choice; `name` is an X display, empty for DISPLAY.
/// A platform that needs neither X nor Wayland is taken to work.
bool displayAnswers(const QString& platform, const QString& name = {});
