// SPDX-License-Identifier: BSD-3-Clause
#include "PropertyPlace.h"

#include <QThread>

PropertyPlace::PropertyPlace(QObject* object, int index)
    : m_object(object)
    , m_class(object->metaObject())
    , m_index(index)
{
    const QMetaProperty declared = m_class->property(index);
    m_name = declared.name();
    m_notifySignal = declared.notifySignalIndex();
    m_writable = declared.isWritable();
    m_resettable = declared.isResettable();
    m_variant = declared.metaType() == QMetaType::fromType<QVariant>();
}

PropertyPlace::PropertyPlace(QObject* object, const QByteArray& dynamicName)
    : m_object(object)
    , m_class(object->metaObject())
    , m_name(dynamicName)
{
}

QObject* PropertyPlace::object() const
{
    QObject* const object = m_object.data();
    // While an object is destroyed, it passes for one of its base classes.
    return object && object->thread() == QThread::currentThread() && object->metaObject() == m_class
        ? object
        : nullptr;
}

const char* PropertyPlace::refusal() const
{
    if (object())
        return nullptr;
    return m_object && m_object->thread() != QThread::currentThread()
        ? "the object lives in another thread"
        : "the object is gone";
}

QMetaProperty PropertyPlace::property() const
{
    return object() && m_index >= 0 ? m_class->property(m_index) : QMetaProperty();
}

std::optional<QVariant> PropertyPlace::read() const
{
    QObject* const from = object();
    if (!from)
        return std::nullopt;
    return m_index >= 0 ? m_class->property(m_index).read(from) : from->property(m_name);
}

bool PropertyPlace::reset() const
{
    QObject* const of = object();
    return of && m_index >= 0 && m_class->property(m_index).reset(of);
}

bool PropertyPlace::write(const QVariant& value) const
{
    QObject* const to = object();
    if (!to)
        return false;
    if (m_index >= 0)
        return m_class->property(m_index).write(to, value);
    to->setProperty(m_name, value); // which is false for every dynamic property
    return true;
}
