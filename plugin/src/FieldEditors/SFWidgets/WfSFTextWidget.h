// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvStrings.h"
#include "FieldEdit.h"
#include "KnField.h"
#include "LineEdits.h"
#include "UnwrittenText.h"
#include "WfSFieldWidget.h"

#include <QBoxLayout>
#include <QLineEdit>

/// The editors whose line holds the value itself, character for character, not a text form that the
/// kernel parses. They write whenever a person has finished editing the line. `Traits` has
///   `typeName`, `className`: extension name and label, and the default object name,
///   `fieldType()`: the field type of the class,
///   `read(const KnField&)`, `write(KnField&, const KbString&)`: the value of such a field.
template <class Traits>
class WfSFTextWidget : public WfSFieldWidget {
public:
    explicit WfSFTextWidget(const char* name = nullptr)
        : WfSFieldWidget(name)
    {
        identify(Traits::fieldType(), Traits::typeName, name, Traits::className);
    }

    void load() override
    {
        setLabel(QLatin1String(Traits::typeName));
        WfSFieldWidget::load();
        m_lineEdit = makeLineEdit(m_editionFrame, m_editLayout);
        new UnwrittenText(m_lineEdit, this, [this] { updateFromField(); });
        connect(m_lineEdit, &QLineEdit::editingFinished, this, &WfSFTextWidget::setCommandValue);
    }

    void updateFromField() override
    {
        KbString text;
        if (m_field && holdsValue())
            text = Traits::read(*m_field);
        else if (m_field)
            m_field->get(text);
        m_lineEdit->setText(toQString(text));
        WfSFieldWidget::updateFromField();
    }

    void applyChanges() override
    {
        const KbString text = toKbString(m_lineEdit->text());
        executeFieldEdit(*this, m_field, [this, &text] {
            if (holdsValue())
                Traits::write(*m_field, text);
            else
                m_field->set(text);
        });
    }

    bool edited() override { return m_lineEdit->isModified(); }

protected:
    QLineEdit* m_lineEdit = nullptr; // child of the edition frame

private:
    bool holdsValue() const { return m_field->isOfType(Traits::fieldType()); }
};
