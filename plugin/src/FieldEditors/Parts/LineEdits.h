// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

#include <vector>

class QBoxLayout;
class QLineEdit;
class QWidget;

/// The line of an editor that shows a field in one line: a child of `parent`, named "lineEdit",
/// that takes the free space of `layout`. It takes a text of any length, so that a field's text is
/// never cut.
QLineEdit* makeLineEdit(QWidget* parent, QBoxLayout* layout);

/// Shows a text that comes from the field. If all of the old text was selected, all of the new one
/// is, with the cursor at its start: tabbing from line to line causes refreshes, and the next key
/// should still replace the number, not be inserted before it.
void refreshLine(QLineEdit* line, const QString& text);

// For the lines of an editor that shows each component of its value in one.

/// Whether any of them holds text that a person typed and no refresh has replaced.
bool isAnyModified(const std::vector<QLineEdit*>& lines);
/// Moves the cursor of each to the start of its text.
void resetCursors(const std::vector<QLineEdit*>& lines);
