// SPDX-License-Identifier: BSD-3-Clause
#pragma once

class QString;
class QWidget;

/// Gives the controls of a pane the names by which a screen reader tells them apart, and its icon
/// buttons tool tips, where whoever built the pane gave none: a button gets its tool tip for a
/// name, a line what it says while it is empty, and anything else the title of the pane.
void completeNames(QWidget* pane, const QString& title);
