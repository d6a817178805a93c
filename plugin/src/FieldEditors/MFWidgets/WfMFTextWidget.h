// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvStrings.h"
#include "KnMFields.h"
#include "RowEdit.h"
#include "WfMFieldWidget.h"

#include <QLatin1String>

/// What the editors share whose arrays hold arbitrary texts: one column of plain lines. `Traits`
/// has
///   `fieldType()`: the field type of the class,
///   `typeName`, `className`: label and extension name, and the default object name,
///   `read(KnMField&, int row)`, `write(KnMField&, int row, const KbString&)`: the text of a row
///   that exists,
///   `swap(KnMField&, int row1, int row2)`: exchanges two rows that exist.
template <class Traits>
class WfMFTextWidget : public WfMFieldWidget {
public:
    explicit WfMFTextWidget(const char* name = nullptr)
        : WfMFieldWidget(name)
    {
        identify(Traits::fieldType(), Traits::typeName, name, Traits::className);
    }

    void load() override
    {
        setLabel(QLatin1String(Traits::typeName));
        WfMFieldWidget::load();
        shapeColumns(1);
    }

    void swapFieldValues(int row1, int row2) override
    {
        if (mayWriteRow(row1) && mayWriteRow(row2))
            Traits::swap(*m_field, row1, row2);
    }

    void setFieldValue(int row, int, QString text) override
    {
        if (!mayWriteRow(row))
            return;
        executeRowEdit(
            m_field, row, [this, row, &text] { Traits::write(*m_field, row, toKbString(text)); });
    }

    QString getCellText(int row, int col) override
    {
        return col < 1 && hasRow(row) ? toQString(Traits::read(*m_field, row)) : QString();
    }

    bool acceptsField(KnField* field) override
    {
        return field && field->isOfType(Traits::fieldType());
    }
};
