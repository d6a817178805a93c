// SPDX-License-Identifier: BSD-3-Clause
#include "PropertySnapshot.h"

#include "InspectorInput.h"

#include <QDebug>
#include <QLocale>
#include <QMetaProperty>
#include <QSet>

#include <cstring>

namespace {

template <class Number>
bool hasSameBits(const QVariant& a, const QVariant& b)
{
    return std::memcmp(a.constData(), b.constData(), sizeof(Number)) == 0;
}

/// Those that follow the focus, the mouse and the time, what Qt reads from elsewhere, and what is
/// known of each child anyway.
bool changesByItself(const QMetaProperty& property)
{
    static const QSet<QByteArray> names { "focus", "isActiveWindow", "active", "underMouse",
        "cursorFlashTime", "remainingTime", "contentOrientation", "windowState", "childrenRect",
        "childrenRegion" };
    return names.contains(property.name());
}

QList<QVariant> valuesOf(const QObject* object)
{
    QList<QVariant> values;
    const QMetaObject* const meta = object->metaObject();
    for (int i = 0; i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        const bool isRead = property.isReadable() && !changesByItself(property);
        values += isRead ? property.read(object) : QVariant();
    }
    return values;
}

} // namespace

bool isSameValue(const QVariant& a, const QVariant& b)
{
    if (a.metaType() != b.metaType())
        return false;
    // Its number options are no part of its text.
    if (a.typeId() == QMetaType::QLocale)
        return a.toLocale().bcp47Name() == b.toLocale().bcp47Name()
            && a.toLocale().language() == b.toLocale().language();
    if (a.metaType() == QMetaType::fromType<float>())
        return hasSameBits<float>(a, b);
    if (a.metaType() == QMetaType::fromType<double>())
        return hasSameBits<double>(a, b);
    if (a.metaType().isEqualityComparable())
        return a == b;
    // Enumerations that were never registered, and the like.
    if (a.metaType().flags() & QMetaType::IsEnumeration)
        return std::memcmp(a.constData(), b.constData(), std::size_t(a.metaType().sizeOf())) == 0;
    return textOf(a) == textOf(b);
}

QString textOf(const QVariant& value)
{
    QString text;
    QDebug(&text).nospace() << value;
    return text.simplified().left(160);
}

PropertySnapshot PropertySnapshot::take()
{
    PropertySnapshot snapshot;
    const QObjectList objects = InspectorInput::programObjects();
    for (QObject* const object : objects)
        snapshot.m_entries.push_back({ object, {} });
    // A getter may make objects and destroy others.
    for (Entry& entry : snapshot.m_entries) {
        if (entry.object)
            entry.values = valuesOf(entry.object);
    }
    return snapshot;
}

QStringList PropertySnapshot::changes() const
{
    QStringList lines;
    for (const Entry& entry : m_entries) {
        if (!entry.object)
            continue;
        const QMetaObject* const meta = entry.object->metaObject();
        const QList<QVariant> values = valuesOf(entry.object);
        for (int i = 0; i < values.size() && i < entry.values.size(); ++i) {
            if (isSameValue(entry.values[i], values[i]))
                continue;
            lines += QStringLiteral("%1 \"%2\" %3: %4 became %5")
                         .arg(QLatin1String(meta->className()), entry.object->objectName(),
                             QLatin1String(meta->property(i).name()), textOf(entry.values[i]),
                             textOf(values[i]));
        }
    }
    return lines;
}

int PropertySnapshot::count() const { return static_cast<int>(m_entries.size()); }
