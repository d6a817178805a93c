// SPDX-License-Identifier: BSD-3-Clause
#include "TextForm.h"

#include "Choices.h"
#include "TextFormOf.h"

#include <QDebug>
#include <QHash>
#include <QObject>
#include <QThread>

namespace {

QString describe(const QVariant& value)
{
    if (!value.isValid())
        return QStringLiteral("nothing");
    QString text;
    QDebug debug = QDebug(&text).nospace();
    if (value.metaType().hasRegisteredDebugStreamOperator())
        value.metaType().debugStream(debug, value.constData());
    else if (value.canConvert<QString>())
        text = value.toString();
    if (text.isEmpty())
        text = QLatin1String(value.typeName());
    return text;
}

QString describeObject(const QVariant& value)
{
    const auto* const object = value.value<QObject*>();
    if (!object)
        return QStringLiteral("none");
    const QLatin1String type(object->metaObject()->className());
    // Its name may be written there at this very moment.
    if (object->thread() != QThread::currentThread())
        return type + QStringLiteral(" in another thread");
    return object->objectName().isEmpty()
        ? QString(type)
        : QStringLiteral("%1 \"%2\"").arg(type, object->objectName());
}

const QHash<int, TextForm>& formsByType()
{
    static const QHash<int, TextForm> forms = [] {
        QHash<int, TextForm> all;
        for (const auto& make : { numberForms, plainForms, lookForms, shapeForms, mixedForms }) {
            for (const TextForm& form : make())
                all.insert(form.type.id(), form);
        }
        return all;
    }();
    return forms;
}

/// By the names of the numbers, or by the number itself where it has none, or too many bits.
const TextForm& choiceForm()
{
    static const TextForm form { QMetaType(), "SFChoice",
        "a name, several with | between, or a number", &choiceText, &choiceOf };
    return form;
}

const TextForm& descriptionForm()
{
    static const TextForm form { QMetaType(), "SFDescription", "", &describe, nullptr };
    return form;
}

} // namespace

const TextForm& textFormOf(QMetaType type)
{
    const auto known = formsByType().constFind(type.id());
    if (known != formsByType().constEnd())
        return *known;
    if (isChoice(type))
        return choiceForm();
    return type.flags().testFlag(QMetaType::PointerToQObject) ? objectForm() : descriptionForm();
}

QString valueText(const QVariant& value)
{
    // In quotes, and on one line.
    if (value.metaType() == QMetaType::fromType<QString>())
        return describe(value);
    return textFormOf(value.metaType()).write(value);
}

const TextForm& objectForm()
{
    static const TextForm form { QMetaType(), "SFObject", "", &describeObject, nullptr };
    return form;
}

bool readsBack(const TextForm& form, const QVariant& value)
{
    return form.read
        && (!form.isPartial || form.read(form.write(value), QVariant(value.metaType())) == value);
}
