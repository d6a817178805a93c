// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "TextForm.h"

#include <vector>

// How a form is made from two functions of one type of Qt's, and where the forms come from.

/// `write` gives the text of a value, `read` takes a text and the value that it is to replace, and
/// gives none for a bad one.
template <class Qt>
struct Text;

/// For types whose texts say all there is to say: `parse` takes nothing but a text.
template <class Qt>
concept TextSaysAll = requires(const QString& text)
{
    Text<Qt>::parse(text);
};

template <class Qt>
std::optional<QVariant> readText(const QString& text, const QVariant& before)
{
    std::optional<Qt> value;
    if constexpr (TextSaysAll<Qt>)
        value = Text<Qt>::parse(text);
    else
        value = Text<Qt>::read(text, before.value<Qt>());
    return value ? std::optional(QVariant::fromValue(*value)) : std::nullopt;
}

template <class Qt>
TextForm makeForm(const char* fieldType, const char* expected, bool isPartial = false)
{
    return { QMetaType::fromType<Qt>(), fieldType, expected,
        [](const QVariant& value) { return Text<Qt>::write(value.value<Qt>()); }, &readText<Qt>,
        isPartial };
}

/// Numbers, and what consists of a fixed count of them.
std::vector<TextForm> numberForms();
/// Texts, bytes, dates, keys and other plain data.
std::vector<TextForm> plainForms();
/// What makes the look of a widget: fonts, colours, palettes, cursors, ...
std::vector<TextForm> lookForms();
/// Lists of points and rectangles, and curves.
std::vector<TextForm> shapeForms();
/// What holds values of several types.
std::vector<TextForm> mixedForms();
