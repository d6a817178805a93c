// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnSFBitMask.h"
#include "PropertyFields.h"

#include <QMetaEnum>

/// The enumeration of that type as its class declares it; invalid if none is known.
QMetaEnum enumerationOf(QMetaType type);
/// Whether the numbers of the type fit into a field, which holds an `int`.
bool fitsChoice(QMetaType type);

/// The number of a value of an enumeration or of flags, and a value from a number, of which a
/// small type takes the lower bits.
int choiceNumber(const QVariant& value);
QVariant choiceValue(QMetaType type, int number);
/// Gives the names of an enumeration to a field.
void nameChoices(KnSFEnum& field, const QMetaEnum& enumeration);

/// An enumeration (KnSFEnum) or flags (KnSFBitMask).
template <class Field>
class ChoicePropertyField final : public PropertyFieldOf<Field> {
public:
    ChoicePropertyField(const PropertyPlace& place, QMetaType type, const QMetaEnum& enumeration)
        : PropertyFieldOf<Field>(place)
        , m_type(type)
    {
        nameChoices(*this, enumeration);
    }

protected:
    bool shows(const QVariant& value) const override
    {
        return choiceNumber(value) == this->getValue();
    }
    void show(const QVariant& value) override { this->setValue(choiceNumber(value)); }
    QVariant shownValue() const override { return choiceValue(m_type, this->getValue()); }

private:
    const QMetaType m_type;
};
