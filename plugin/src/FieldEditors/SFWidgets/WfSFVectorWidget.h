// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "FieldEdit.h"
#include "UnwrittenText.h"
#include "ValueComponents.h"
#include "WfSFLineBox.h"

#include <type_traits>

/// What all vector editors share: the inputs of a column box show the components of the field's
/// value. `Box` is the base because it has a meta-object, which a template can't have, and a
/// parameter because some values have lines as inputs and others spin boxes. `Traits` has
///   `Field`: the field class,
///   `typeName`, `className`: extension name and label, and the default object name.
template <class Traits, class Box>
class WfSFVectorWidget : public Box {
public:
    /// `boxArguments` go to the box, before the name: WfSFLineBox takes its layout from them, the
    /// other boxes have their own.
    template <class... BoxArguments>
    explicit WfSFVectorWidget(const char* name = nullptr, const BoxArguments&... boxArguments)
        : Box(boxArguments..., name)
    {
        this->identify(Field::getClassTypeId(), Traits::typeName, name, Traits::className);
    }

    void load() override
    {
        this->setLabel(QLatin1String(Traits::typeName));
        Box::load();
        QString nameArray[Components::count];
        for (std::size_t i = 0; i < Components::count; ++i)
            nameArray[i] = QLatin1String(componentNames<typename Field::Value>[i]);
        this->setLabels(nameArray);
        // Spin boxes write while a person types, so they have nothing to discard.
        if constexpr (std::is_base_of_v<WfSFLineBox, Box>) {
            dropUnwrittenTexts(this->m_lines, this, [this](std::size_t i) {
                return componentText(Components::read(field()->getValue())[i]);
            });
        }
    }

    void updateFromField() override
    {
        if (!this->m_field)
            return;
        this->showNumbers(Components::read(field()->getValue()).data());
        Box::updateFromField();
    }

    void applyChanges() override
    {
        typename Components::Numbers numbers;
        for (std::size_t i = 0; i < numbers.size(); ++i)
            numbers[i] = static_cast<typename Components::Number>(this->number(i));
        executeFieldEdit(*this, this->m_field,
            [this, &numbers] { field()->setValue(Components::make(numbers)); });
    }

private:
    using Field = typename Traits::Field;
    using Components = KbComponents<typename Field::Value>;

    Field* field() const { return static_cast<Field*>(this->m_field); }
};
