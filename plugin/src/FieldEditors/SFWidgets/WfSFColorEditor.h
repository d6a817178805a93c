// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "FieldEdit.h"
#include "UnwrittenText.h"
#include "ValueComponents.h"
#include "WfSFColorBox.h"

#include <algorithm>

/// What both colour editors share beyond their widgets: the road from the field and back. `Traits`
/// has
///   `Field`: the field class,
///   `typeName`, `className`: extension name and label, and the default object name,
///   `style`: of the box.
template <class Traits>
class WfSFColorEditor : public WfSFColorBox {
public:
    explicit WfSFColorEditor(const char* name = nullptr)
        : WfSFColorBox(Traits::style, name)
    {
        identify(Field::getClassTypeId(), Traits::typeName, name, Traits::className);
    }

    void load() override
    {
        setLabel(QLatin1String(Traits::typeName));
        WfSFColorBox::load();
        // A line that goes back takes its channel and the display along.
        dropUnwrittenTexts(m_lines, this, [this](std::size_t i) {
            return componentText(Components::read(field()->getValue())[i]);
        });
    }

    void updateFromField() override
    {
        if (!m_field)
            return;
        const auto numbers = Components::read(field()->getValue());
        m_channels.assign(numbers.begin(), numbers.end());
        showChannels();
        WfSFColorBox::updateFromField();
    }

    void applyChanges() override
    {
        typename Components::Numbers numbers;
        std::copy_n(m_channels.begin(), numbers.size(), numbers.begin());
        executeFieldEdit(
            *this, m_field, [this, &numbers] { field()->setValue(Components::make(numbers)); });
    }

private:
    using Field = typename Traits::Field;
    using Components = KbComponents<typename Field::Value>;

    Field* field() const { return static_cast<Field*>(m_field); }
};
