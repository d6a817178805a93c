// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QMetaEnum>
#include <QVariant>

#include <optional>

// Enumerations and flags, as numbers and as texts.

/// Whether the type is an enumeration or flags, known by names or not.
bool isChoice(QMetaType type);
/// The enumeration of that type as its class declares it; invalid if none is known.
QMetaEnum enumerationOf(QMetaType type);
/// Whether the numbers of the type fit into a field, which holds an `int`.
bool fitsChoice(QMetaType type);

/// The number of a value, and a value from a number, of which a small type takes the lower bits.
qint64 choiceNumber(const QVariant& value);
QVariant choiceValue(QMetaType type, qint64 number);

/// By names, if they say all of it, and else the number.
QString choiceText(const QVariant& value);
/// A value of the type of `before`; none for a bad text.
std::optional<QVariant> choiceOf(const QString& text, const QVariant& before);
