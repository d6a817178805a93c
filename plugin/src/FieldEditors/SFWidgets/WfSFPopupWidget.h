// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "FieldEdit.h"
#include "LineEdits.h"
#include "UnwrittenText.h"
#include "ValueComponents.h"
#include "WfPopupWidget.h"

#include <QLineEdit>

/// What all popup editors share: the grid shows the components of the field's value, row after row.
/// `Traits` has
///   `Field`: the field class,
///   `typeName`, `className`: extension name and label, and the default object name,
///   `rows`, `columns`: of the grid,
///   `validatorKind`: the ValidatorKind of its lines.
template <class Traits>
class WfSFPopupWidget : public WfPopupWidget {
public:
    explicit WfSFPopupWidget(const char* name = nullptr)
        : WfPopupWidget(Traits::rows, Traits::columns, name)
    {
        identify(Field::getClassTypeId(), Traits::typeName, name, Traits::className);
    }

    void load() override
    {
        setLabel(QLatin1String(Traits::typeName));
        WfPopupWidget::load();
        setValidatorKind(Traits::validatorKind);
        dropUnwrittenTexts(m_lineEdits, this, [this](std::size_t i) {
            return componentText(Components::read(field()->getValue())[i]);
        });
    }

    void updateFromField() override
    {
        if (!m_field)
            return;
        const auto numbers = Components::read(field()->getValue());
        for (std::size_t i = 0; i < numbers.size(); ++i)
            refreshLine(m_lineEdits[i], componentText(numbers[i]));
        resetCursorPositions();
        WfSFLineWidget::updateFromField();
    }

    using WfPopupWidget::applyChanges;
    void applyChanges() override
    {
        typename Components::Numbers numbers;
        for (std::size_t i = 0; i < numbers.size(); ++i)
            numbers[i] = componentNumber<typename Components::Number>(m_lineEdits[i]->text());
        executeFieldEdit(
            *this, m_field, [this, &numbers] { field()->setValue(Components::make(numbers)); });
        // The summary shows the new value at once, without waiting for the sensor.
        if (shows(m_field))
            WfSFLineWidget::updateFromField();
    }

private:
    using Field = typename Traits::Field;
    using Components = KbComponents<typename Field::Value>;
    static_assert(Traits::rows * Traits::columns == Components::count);

    Field* field() const { return static_cast<Field*>(m_field); }
};
