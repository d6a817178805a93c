// SPDX-License-Identifier: BSD-3-Clause
#include "ChoiceField.h"

#include <bit>
#include <cstring>
#include <vector>

namespace {

template <class Number>
int copied(const QVariant& value)
{
    Number number = 0;
    std::memcpy(&number, value.constData(), sizeof number);
    return number;
}

} // namespace

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

bool fitsChoice(QMetaType type)
{
    const auto size = type.sizeOf();
    return size == sizeof(qint8) || size == sizeof(qint16) || size == sizeof(qint32);
}

// The bits are copied, since not every enumeration tells Qt how it becomes a number.
int choiceNumber(const QVariant& value)
{
    const bool isUnsigned = value.metaType().flags().testFlag(QMetaType::IsUnsignedEnumeration);
    switch (value.metaType().sizeOf()) {
    case sizeof(qint8):
        return isUnsigned ? copied<quint8>(value) : copied<qint8>(value);
    case sizeof(qint16):
        return isUnsigned ? copied<quint16>(value) : copied<qint16>(value);
    case sizeof(qint32):
        return copied<qint32>(value);
    default:
        return value.toInt();
    }
}

QVariant choiceValue(QMetaType type, int number)
{
    const auto byte = static_cast<qint8>(number);
    const auto word = static_cast<qint16>(number);
    switch (type.sizeOf()) {
    case sizeof(qint8):
        return QVariant(type, &byte);
    case sizeof(qint16):
        return QVariant(type, &word);
    default:
        return QVariant(type, &number);
    }
}

void nameChoices(KnSFEnum& field, const QMetaEnum& enumeration)
{
    std::vector<int> values;
    std::vector<KbName> names;
    int named = 0; // bits
    const auto add = [&](int index) {
        values.push_back(enumeration.value(index));
        names.emplace_back(enumeration.key(index));
        named |= enumeration.value(index);
    };
    // Of flags each bit by one name: another one that stands for it, too, would hold it set.
    const auto isBit = [](int value) { return std::has_single_bit(static_cast<unsigned>(value)); };
    for (int i = 0; i < enumeration.keyCount(); ++i) {
        const int value = enumeration.value(i);
        if (!enumeration.isFlag() || (isBit(value) && (named & value) == 0))
            add(i);
    }
    for (int i = 0; enumeration.isFlag() && i < enumeration.keyCount(); ++i) {
        const int value = enumeration.value(i);
        if (!isBit(value) && (named & value) == 0)
            add(i);
    }
    field.setEnums(static_cast<int>(values.size()), values.data(), names.data());
}
