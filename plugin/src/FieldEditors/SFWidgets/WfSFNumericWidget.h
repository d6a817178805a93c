// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "FieldEdit.h"
#include "WfSFieldWidget.h"

#include <QLatin1String>

#include <utility>

/// What all editors of single numbers share: a slider is the whole input area, holds value and
/// range, and calls applyChanges() when a person changes the value. `Traits` says what a member of
/// the family is made for:
///   `Field`, `Slider`: field class and slider class,
///   `sliderKind`: the SliderKind of the slider that the base makes,
///   `typeName`, `className`: extension name and label, and the default object name.
template <class Traits>
class WfSFNumericWidget : public WfSFieldWidget {
public:
    explicit WfSFNumericWidget(const char* name = nullptr)
        : WfSFieldWidget(Traits::sliderKind, name)
    {
        identify(Traits::Field::getClassTypeId(), Traits::typeName, name, Traits::className);
    }

    void load() override
    {
        setLabel(QLatin1String(Traits::typeName));
        WfSFieldWidget::load();
    }

    void attachField(KnField* field) override
    {
        // A drag that was cut short by the change of field has left a text of the previous one.
        static_cast<Slider*>(m_editionFrame)->m_oldValue.makeNull();
        WfSFieldWidget::attachField(field);
    }

    bool edited() override { return m_slider->isModified(); }

protected:
    using Field = typename Traits::Field;
    using Slider = typename Traits::Slider;

    /// Sets m_slider; called before anything uses it.
    void takeSlider() { m_slider = static_cast<Slider*>(m_editionFrame); }

    /// One edit of the attached field. Undo brings back the text that the slider saved when it was
    /// pressed.
    template <class Write>
    void executeEdit(Write&& write)
    {
        executeFieldEdit(*this, m_field, m_slider->m_oldValue, std::forward<Write>(write));
    }

    Field* field() const { return static_cast<Field*>(m_field); }

    Slider* m_slider = nullptr; // the same object as m_editionFrame
};
