// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvMFSetFieldValueCommand.h"
#include "FieldEdit.h"
#include "WfMFVectorWidget.h"

#include <algorithm>
#include <memory>

/// What both editors of arrays of colours share: a column that shows each colour, in front of the
/// columns of its components. `Vector`, the base, is the editor of vectors with as many components:
/// a colour editor is also one of those. `Traits` has
///   `Field`: the field class,
///   `typeName`, `className`: label and extension name, and the default object name,
///   `channels`: a letter for each component.
template <class Traits, class Vector>
class WfMFColorEditor : public Vector {
public:
    explicit WfMFColorEditor(const char* name = nullptr)
        : Vector(WfMFieldWidget::ColorTable, name)
    {
        this->identify(Field::getClassTypeId(), Traits::typeName, name, Traits::className);
    }

    void load() override
    {
        this->setLabel(QLatin1String(Traits::typeName));
        WfMFieldWidget::load();
        QStringList headers { colorColumn() };
        for (const char* letter = Traits::channels; *letter; ++letter)
            headers << QString(QLatin1Char(*letter));
        this->shapeColumns(headers);
    }

    void setFieldColor(int row, const void* color) override
    {
        if (!this->mayWriteRow(row) || !this->m_field->isOfType(Field::getClassTypeId()))
            return;
        typename Components::Numbers numbers;
        std::copy_n(
            static_cast<const KbVec4f*>(color)->getValue(), numbers.size(), numbers.begin());
        auto* const field = static_cast<Field*>(this->m_field);
        executeEdit(std::make_unique<CrvMFSetFieldValueCommand>(field, row), field,
            [&] { field->set1Value(row, Components::make(numbers)); });
    }

    QString getCellText(int row, int col) override
    {
        return col == 0 ? colorColumn() : Vector::getCellText(row, col - 1);
    }

    bool acceptsField(KnField*) override { return true; }

    /// `col` is the component's number; the column of the colour doesn't count.
    void setCellValue(float value, int row, int col) override
    {
        if (!(double(value) >= 0.0 && double(value) <= 1.0))
            return;
        // A cell is also written when it is left unchanged, and it shows only six digits of the
        // component. So a number that equals what the cell shows leaves the component as it is.
        if (this->hasCell(row, col)
            && componentNumber<float>(Vector::getCellText(row, col)) == value)
            value = this->component(row, col);
        Vector::setCellValue(value, row, col);
    }

private:
    using Field = typename Traits::Field;
    using Components = typename Vector::Components;

    static QString colorColumn() { return QStringLiteral("Color"); }
};
