// SPDX-License-Identifier: BSD-3-Clause
#pragma once

class QWidget;

/// Whether the widget stands in the window, or in a dialog, a popup or a floating dock that belongs
/// to it. `widget` may be null, and then it doesn't.
bool isInFamily(const QWidget* widget, const QWidget* window);
