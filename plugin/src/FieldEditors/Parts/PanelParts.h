// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

class QFrame;
class QLabel;
class QLayout;
class QPixmap;
class QPushButton;
class QWidget;

// What the panels of all field editors are put together from.

/// The same margin, in pixels, on all four sides.
void setMargins(QLayout* layout, int margin);

/// Gives a layout its margins and its spacing, each by the name of a metric, and its object name.
void shapeLayout(
    QLayout* layout, const char* marginMetric, const char* spacingMetric, const char* name);

/// Draws a plain box around a frame; the metric is its line width.
void drawBox(QFrame* frame, const char* lineWidthMetric);

/// Gives an editor's title its look.
void styleTitleLabel(QLabel* label);

/// A text that stands in the middle of its label.
QString centredText(const QString& text);

/// A small button that carries an icon and no text, a child of `parent`. It never takes the focus,
/// so that a click on it doesn't end what is being typed.
QPushButton* makeIconButton(QWidget* parent, const char* name, const QPixmap& icon);

/// The same with the focus policy of a plain button: the tab key reaches it, and Space and Return
/// press it.
QPushButton* makeFocusableIconButton(QWidget* parent, const char* name, const QPixmap& icon);
