// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>
#include <QVariant>

#include <optional>

// Values of any type as text that says the type as well, for lists and maps of variants. What JSON
// knows is written as there: `5` is an int, `5.0` a double, `"5"` a QString, `[ ]` a QVariantList
// and `{ }` a QVariantMap. All others bear their type's name: `QRect "1 2 3 4"`,
// `QVariantHash { "a": 1 }`, `QStringList [ "a", "b" ]`; an invalid value is `null`.

/// The text of a value. One of a type that has no form ends in a description that can't be read.
QString typedText(const QVariant& value);
/// The value of a text; none for a bad one.
std::optional<QVariant> typedValue(const QString& text);
