// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

class QBoxLayout;
class QLineEdit;
class QWidget;

/// The line of an editor that shows a field in one line: a child of `parent`, named "lineEdit",
/// that takes the free space of `layout`. A text of any length fits, so that none is cut on the way
/// from a field and back.
QLineEdit* makeLineEdit(QWidget* parent, QBoxLayout* layout);

/// Shows a text that comes from the field. A text that is selected as a whole stays selected, with
/// the cursor at its start: whoever tabs through the lines gets a refresh after each of them, and
/// the next key is to replace the number, not to stand in front of it.
void refreshLine(QLineEdit* line, const QString& text);
/// Moves the cursor to the start of the text.
void resetCursorPosition(QLineEdit* line);
