// SPDX-License-Identifier: BSD-3-Clause
#pragma once

class QAbstractButton;
class QFrame;
class QLineEdit;
class QWidget;

// The popup in which an editor shows a value with too many components for one row: a frame with a
// grid of lines, one for each component.

/// A closed popup of an editor's panel, named "m_popupFrame", with an empty grid. It is a window,
/// and a child of `panel`. It closes as PopupCloser describes; `button` opens it.
QFrame* makePopupFrame(QWidget* panel, QAbstractButton* button);

/// Puts a child of the popup into a cell of its grid, which has that many columns. Names the line
/// "m_lineEdits" and fits its font so that it shows a number of six digits in full.
void addPopupLine(QFrame* popup, QLineEdit* line, int row, int column, int columns);

/// Shows a popup with the focus in `first`, whose text is selected, so that typing replaces it.
void showPopup(QFrame* popup, QLineEdit* first);

/// Gives a popup that has never been shown the size that its lines need.
void settlePopupSize(QFrame* popup);
