// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "Choices.h"
#include "KnSFBitMask.h"
#include "PropertyFields.h"

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
    QMetaType type() const override { return m_type; }
    bool shows(const QVariant& value) const override
    {
        return static_cast<int>(choiceNumber(value)) == this->getValue();
    }
    void show(const QVariant& value) override
    {
        this->setValue(static_cast<int>(choiceNumber(value)));
    }
    QVariant valueFor(const QVariant&) override { return choiceValue(m_type, this->getValue()); }

private:
    const QMetaType m_type;
};
