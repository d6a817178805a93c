// SPDX-License-Identifier: BSD-3-Clause
#include "TextFormOf.h"
#include "TypedText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

QString writeJson(const QJsonValue& value)
{
    const QByteArray text = QJsonDocument(QJsonArray { value }).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(text.mid(1, text.size() - 2));
}

QJsonValue readJson(const QString& text)
{
    const QByteArray whole = '[' + text.toUtf8() + ']';
    const QJsonArray array = QJsonDocument::fromJson(whole).array();
    return array.size() == 1 ? array.first() : QJsonValue(QJsonValue::Undefined);
}

} // namespace

template <>
struct Text<QJsonValue> {
    static QString write(const QJsonValue& value) { return writeJson(value); }
    static std::optional<QJsonValue> parse(const QString& text)
    {
        const QJsonValue value = readJson(text);
        return value.isUndefined() ? std::nullopt : std::optional(value);
    }
};

template <>
struct Text<QJsonObject> {
    static QString write(const QJsonObject& object) { return writeJson(object); }
    static std::optional<QJsonObject> parse(const QString& text)
    {
        const QJsonValue value = readJson(text);
        return value.isObject() ? std::optional(value.toObject()) : std::nullopt;
    }
};

template <>
struct Text<QJsonArray> {
    static QString write(const QJsonArray& array) { return writeJson(array); }
    static std::optional<QJsonArray> parse(const QString& text)
    {
        const QJsonValue value = readJson(text);
        return value.isArray() ? std::optional(value.toArray()) : std::nullopt;
    }
};

namespace {

/// A form for what TypedText writes. The text may hold a value of any type; here it must be `Qt`.
template <class Qt>
TextForm typedForm(const char* fieldType, const char* expected)
{
    return { QMetaType::fromType<Qt>(), fieldType, expected,
        [](const QVariant& value) { return typedText(value); },
        [](const QString& text, const QVariant& before) {
            const std::optional<QVariant> value = typedValue(text);
            return value && value->metaType() == before.metaType() ? value : std::nullopt;
        },
        true };
}

} // namespace

std::vector<TextForm> mixedForms()
{
    return {
        makeForm<QJsonValue>("SFJson", "a value as JSON", true),
        makeForm<QJsonObject>("SFJsonObject", "an object as JSON", true),
        makeForm<QJsonArray>("SFJsonArray", "an array as JSON", true),
        typedForm<QVariantMap>("SFVariantMap", "{ \"key\": value, ... }"),
        typedForm<QVariantHash>("SFVariantHash", "QVariantHash { \"key\": value, ... }"),
        typedForm<QVariantList>("SFVariantList", "[ value, ... ]"),
        // What a list of variants has in a row.
        { QMetaType::fromType<QVariant>(), "SFVariant",
            "5, 0.5, true, \"text\", null, a list, a map, or a type and a text: QRect \"1 2 3 4\"",
            [](const QVariant& value) { return typedText(value); },
            [](const QString& text, const QVariant&) { return typedValue(text); }, true },
    };
}
