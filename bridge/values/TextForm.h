// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>
#include <QVariant>

/// How the values of one type are written as text, for those that no editor of numbers or colours
/// shows exactly. Pure functions.
struct TextForm {
    QMetaType type;
    /// Of the fields, as the list of fields shows it: "SFRect".
    const char* fieldType;
    /// What a text must hold, for the message about a bad one: "x, y, width and height".
    const char* expected;
    QString (*write)(const QVariant& value);
    /// An invalid value for a bad text. Null if texts can't be read back.
    QVariant (*read)(const QString& text);
};

/// Null if the type has none of its own.
const TextForm* textFormOf(QMetaType type);
/// For whatever has no other form: says what the value is, and can't be read back.
const TextForm& descriptionForm();
/// For a pointer to an object: its class and name. It can't be read back.
const TextForm& objectForm();
