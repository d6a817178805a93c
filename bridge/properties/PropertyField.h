// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnField.h"
#include "PropertyPlace.h"

/// What all fields share that stand for a property: they show what the property holds, and a write
/// goes through its setter. Afterwards the field shows what the setter has made of it.
///
/// While it is watched, a field follows its property: by the signal that announces changes, or else
/// by a comparison a few times a second. Otherwise it is read when its text is asked for.
class PropertyField {
public:
    Q_DISABLE_COPY_MOVE(PropertyField)

    const PropertyPlace& place() const { return m_place; }
    KnField& field() const { return m_field; }
    /// Reads the property and shows what it holds. The field keeps its value if the object is gone.
    void refresh();

protected:
    /// `field` is the other half of the same object.
    PropertyField(KnField& field, const PropertyPlace& place);
    ~PropertyField();

    /// For KnField::set: false, after a KnReadError, if the object is gone.
    bool takesText() const;
    /// For the hooks of KnField of the same names.
    void fieldWritten();
    void fieldWatchBegins();
    void fieldWatchEnds();

    /// Whether the field shows this value of the property.
    virtual bool shows(const QVariant& value) const = 0;
    /// Writes a value of the property into the field.
    virtual void show(const QVariant& value) = 0;
    /// The field's value as the property takes it.
    virtual QVariant shownValue() const = 0;

private:
    KnField& m_field;
    const PropertyPlace m_place;
    bool m_showing = false; // what is written comes from the property
};
