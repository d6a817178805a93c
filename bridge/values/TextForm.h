// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>
#include <QVariant>

#include <optional>

/// How the values of one type are written as text, for those that no editor of numbers or colours
/// shows exactly. Pure functions.
struct TextForm {
    /// None for a form that serves several types.
    QMetaType type;
    /// Of the fields, as the list of fields shows it: "SFRect".
    const char* fieldType;
    /// What a text must hold, for the message about a bad one: "x, y, width and height".
    const char* expected;
    QString (*write)(const QVariant& value);
    /// A value of the type that `before` has, which the text is to replace: what a text leaves
    /// unsaid stays as it was. None for a bad text. Null if texts can't be read back.
    std::optional<QVariant> (*read)(const QString& text, const QVariant& before);
    /// Some values of the type have a text that can't be read back.
    bool isPartial = false;
};

/// The form for values of a type: its own, that of enumerations, that of pointers to objects, or
/// else a description, which can't be read back.
const TextForm& textFormOf(QMetaType type);
/// A value of any type as text for people: a text in quotes, others by the form of their type.
QString valueText(const QVariant& value);
/// For a pointer to an object: its class and name. It can't be read back.
const TextForm& objectForm();
/// Whether the text of this value reads back to it.
bool readsBack(const TextForm& form, const QVariant& value);
