// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QVariant>
#include <QWidget>

/// Does what a person does in an editor to give a value another one: another entry, a click, a drag
/// of the slider, a typed text. False if the editor has nothing to edit with. `value` is the one
/// that the property has.
bool editByInput(QWidget* editor, const QVariant& value);

/// Clicks an input, selects all that is in it and types another text; Return applies it.
void typeInto(QWidget* input, const QString& text);
