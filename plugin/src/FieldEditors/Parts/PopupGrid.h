// SPDX-License-Identifier: BSD-3-Clause
#pragma once

class QAbstractButton;
class QFrame;
class QLineEdit;
class QWidget;

// The popup in which an editor shows a value of too many components for one row: a frame with a
// grid of lines, one a component.

/// A closed popup of an editor's panel, named "m_popupFrame", with an empty grid. It is a window,
/// and a child of `panel`. It lets itself go as PopupCloser says; `button` opens it.
QFrame* makePopupFrame(QWidget* panel, QAbstractButton* button);

/// Puts a line, named "m_lineEdits", into a cell of the popup's grid, which has so many columns; it
/// shows a number whole. The popup is its parent already.
void addPopupLine(QFrame* popup, QLineEdit* line, int row, int column, int columns);

/// Shows a popup with the focus in `first`, whose text is selected, so that the first key counts.
void showPopup(QFrame* popup, QLineEdit* first);

/// Gives a popup the size that its lines need, which it doesn't know before it was ever shown.
void settlePopupSize(QFrame* popup);
