// SPDX-License-Identifier: BSD-3-Clause
#pragma once

class KnField;
class QString;
class QWidget;

// The names by which a screen reader tells the inputs of an editor apart. An editor serves many
// fields, so that a name has two parts: the field, and what the input stands for in it.

/// Says what an input or a button stands for besides the whole value, such as "x". The sole input
/// of an editor needs none.
void setInputLabel(QWidget* input, const QString& label);

/// Names everything in `panel` that can be operated and bears no text, also in its popups, after
/// the field and its own label, such as "translation x". A button without a label has its tool tip.
void nameInputs(QWidget* panel, const KnField* field);
/// The same for the editor of one cell of a table; `cell` stands for the field.
void nameCellInputs(QWidget* editor, const QString& cell);
