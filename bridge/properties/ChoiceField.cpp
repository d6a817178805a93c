// SPDX-License-Identifier: BSD-3-Clause
#include "ChoiceField.h"

#include <cstring>
#include <vector>

QMetaEnum enumerationOf(QMetaType type)
{
    const QMetaObject* const scope = type.metaObject();
    if (!scope || type.flags().testFlag(QMetaType::PointerToQObject))
        return QMetaEnum();
    QByteArray name(type.name());
    if (name.startsWith("QFlags<"))
        name.chop(1); // the bracket; the enumeration's name finds the flags, too
    name.remove(0, name.lastIndexOf(name.contains(':') ? ':' : '<') + 1);
    return scope->enumerator(scope->indexOfEnumerator(name));
}

bool isIntSized(QMetaType type) { return type.sizeOf() == sizeof(int); }

// The bits are copied, since not every enumeration tells Qt how it becomes a number.
int choiceNumber(const QVariant& value)
{
    int number = 0;
    if (isIntSized(value.metaType()))
        std::memcpy(&number, value.constData(), sizeof number);
    else
        number = value.toInt();
    return number;
}

QVariant choiceValue(QMetaType type, int number) { return QVariant(type, &number); }

void nameChoices(KnSFEnum& field, const QMetaEnum& enumeration)
{
    std::vector<int> values;
    std::vector<KbName> names;
    for (int i = 0; i < enumeration.keyCount(); ++i) {
        values.push_back(enumeration.value(i));
        names.emplace_back(enumeration.key(i));
    }
    field.setEnums(static_cast<int>(values.size()), values.data(), names.data());
}
