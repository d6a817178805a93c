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
    /// Whether this isn't the field for what the property holds by now, be it of another type or
    /// one that this field can't show as it is. It then goes on to show what it has shown last, and
    /// whoever follows the object is told.
    bool isOutgrown() const;

protected:
    /// `field` is the other half of the same object.
    PropertyField(KnField& field, const PropertyPlace& place);
    ~PropertyField();

    /// For KnField::set: false, after a KnReadError, if the object is gone.
    bool takesText() const;
    /// For KnField::resetToDefault: calls the property's own way to do so.
    bool resetProperty();
    /// For the hooks of KnField of the same names.
    void fieldWritten();
    void fieldWatchBegins();
    void fieldWatchEnds();

    /// Of the values that the field shows.
    virtual QMetaType type() const = 0;
    /// Whether this is the field that shows such a value: of a type that has several fields, one
    /// may show what others can't.
    virtual bool isFor(const QVariant& value) const;
    /// Whether the field shows this value of the property.
    virtual bool shows(const QVariant& value) const = 0;
    /// Writes a value of the property into the field.
    virtual void show(const QVariant& value) = 0;
    /// What the field holds as a value for the property, in the place of `before`. What the field
    /// can't say comes from there, or from a value that was replaced earlier and looks the same, so
    /// that an undo gives back the very value that was there. Invalid, after a KnReadError, if the
    /// field holds nothing that the property could take.
    virtual QVariant valueFor(const QVariant& before) = 0;

private:
    KnField& m_field;
    const PropertyPlace m_place;
    bool m_showing = false; // what is written comes from the property
    bool m_outgrown = false; // what the property held when it was last read was for another field
};
