// SPDX-License-Identifier: BSD-3-Clause
#include "Choices.h"

#include <cstring>

namespace {

template <class Number>
qint64 copied(const QVariant& value)
{
    Number number = 0;
    std::memcpy(&number, value.constData(), sizeof number);
    return static_cast<qint64>(number);
}

template <class Number>
QVariant made(QMetaType type, qint64 number)
{
    const auto copy = static_cast<Number>(number);
    return QVariant(type, &copy);
}

bool isUnsigned(QMetaType type)
{
    return type.flags().testFlag(QMetaType::IsUnsignedEnumeration)
        || QByteArrayView(type.name()).startsWith("QFlags<");
}

/// Whether the lower bits of a number, as the type has them, are all there is to it.
bool holds(QMetaType type, qint64 number)
{
    return choiceNumber(choiceValue(type, number)) == number;
}

} // namespace

bool isChoice(QMetaType type)
{
    return type.flags().testFlag(QMetaType::IsEnumeration)
        || QByteArrayView(type.name()).startsWith("QFlags<");
}

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
qint64 choiceNumber(const QVariant& value)
{
    const bool withoutSign = isUnsigned(value.metaType());
    switch (value.metaType().sizeOf()) {
    case sizeof(qint8):
        return withoutSign ? copied<quint8>(value) : copied<qint8>(value);
    case sizeof(qint16):
        return withoutSign ? copied<quint16>(value) : copied<qint16>(value);
    case sizeof(qint32):
        return withoutSign ? copied<quint32>(value) : copied<qint32>(value);
    case sizeof(qint64):
        return copied<qint64>(value);
    default:
        return value.toInt();
    }
}

QVariant choiceValue(QMetaType type, qint64 number)
{
    switch (type.sizeOf()) {
    case sizeof(qint8):
        return made<quint8>(type, number);
    case sizeof(qint16):
        return made<quint16>(type, number);
    case sizeof(qint32):
        return made<quint32>(type, number);
    default:
        return made<quint64>(type, number);
    }
}

QString choiceText(const QVariant& value)
{
    const QMetaEnum enumeration = enumerationOf(value.metaType());
    const qint64 number = choiceNumber(value);
    const auto bits = static_cast<int>(number); // what QMetaEnum knows
    if (enumeration.isValid() && (bits == number || static_cast<uint>(bits) == number)) {
        const QByteArray keys = enumeration.isFlag() ? enumeration.valueToKeys(bits)
                                                     : QByteArray(enumeration.valueToKey(bits));
        bool ok = false;
        if (!keys.isEmpty() && enumeration.keysToValue(keys.constData(), &ok) == bits && ok)
            return QString::fromLatin1(keys);
    }
    return QString::number(number);
}

std::optional<QVariant> choiceOf(const QString& text, const QVariant& before)
{
    const QMetaType type = before.metaType();
    bool ok = false;
    const qint64 number = text.trimmed().toLongLong(&ok, 0);
    if (ok)
        return holds(type, number) ? std::optional(choiceValue(type, number)) : std::nullopt;
    const QMetaEnum enumeration = enumerationOf(type);
    if (!enumeration.isValid() || (!enumeration.isFlag() && text.contains(u'|')))
        return std::nullopt;
    const int bits = enumeration.keysToValue(text.trimmed().toLatin1().constData(), &ok);
    const qint64 whole = isUnsigned(type) ? qint64(static_cast<uint>(bits)) : bits;
    return ok ? std::optional(choiceValue(type, whole)) : std::nullopt;
}
