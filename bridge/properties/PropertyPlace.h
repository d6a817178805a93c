// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QMetaProperty>
#include <QPointer>
#include <QVariant>

#include <optional>

/// Where a value lives: one property of one object, be it declared by the object's class or
/// dynamic. The object may die at any moment, also within its own setter; from then on there is
/// nothing to read or write.
class PropertyPlace {
public:
    /// A property that the object's class declares, by its index.
    PropertyPlace(QObject* object, int index);
    /// A dynamic property.
    PropertyPlace(QObject* object, const QByteArray& dynamicName);

    /// Null once the object is dead or being destroyed, and while it lives in another thread.
    QObject* object() const;
    /// The object as long as it lives, wherever that is and whatever is left of it.
    QObject* remains() const { return m_object.data(); }
    /// Why there is no object, for people; null if there is one.
    const char* refusal() const;
    QByteArray name() const { return m_name; }
    /// Empty if there is no object.
    std::optional<QVariant> read() const;
    /// Calls the setter. False if there is no object, or if the property takes no such value.
    bool write(const QVariant& value) const;
    /// Whether the class has a way to reset the property.
    bool isResettable() const { return m_resettable; }
    /// Calls that way. False if there is no object, or no such way.
    bool reset() const;
    bool isWritable() const { return m_writable; }
    /// Whether the property may hold a value of any type.
    bool isVariant() const { return m_variant; }
    /// The index, among the methods of the class, of the signal that announces changes; -1 if there
    /// is none.
    int notifySignal() const { return m_notifySignal; }
    /// As the class declares it; invalid for a dynamic property and when there is no object.
    QMetaProperty property() const;

private:
    QPointer<QObject> m_object;
    const QMetaObject* m_class; // of the object, as long as its destruction hasn't begun
    int m_index = -1; // of a declared property
    QByteArray m_name;
    int m_notifySignal = -1;
    bool m_writable = true;
    bool m_resettable = false;
    bool m_variant = true;
};
