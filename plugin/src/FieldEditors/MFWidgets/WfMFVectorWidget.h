// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "EditorKind.h"
#include "FieldRow.h"
#include "KnMFields.h"
#include "RowComponents.h"
#include "RowEdit.h"
#include "ValueComponents.h"
#include "WfMFieldTable.h"
#include "WfMFieldWidget.h"

/// What all editors share of arrays whose values are a few numbers each: one row a value, one
/// column a component. `Self` is the editor's own class, since cells are written by its
/// setCellValue(): that is virtual in the two editors that those of colours build on, and in no
/// other. `Traits` has
///   `Field`: the field class,
///   `typeName`, `className`: label and extension name, and the default object name,
///   `editorKind`: of the table's cells,
///   `ColorField`, where there is one: the field class of the colours that consist of the same
///   numbers, which an editor that builds on this one attaches.
template <class Self, class Traits>
class WfMFVectorWidget : public WfMFieldWidget {
public:
    using Value = typename Traits::Field::Value;
    using Components = RowComponents<Value>;
    using Number = typename Components::Number;

    explicit WfMFVectorWidget(const char* name = nullptr)
        : WfMFieldWidget(name)
    {
        identify(Traits::Field::getClassTypeId(), Traits::typeName, name, Traits::className);
    }

    void load() override
    {
        setLabel(QLatin1String(Traits::typeName));
        WfMFieldWidget::load();
        QStringList headers;
        for (int column = 0; column < Components::count; ++column)
            headers << QLatin1String(componentNames<Value>[column]);
        shapeColumns(headers);
        m_table->setEditorKind(Traits::editorKind);
    }

    void swapFieldValues(int row1, int row2) override
    {
        if (hasRow(row1) && hasRow(row2))
            withField([row1, row2](auto& field) { swapRowValues(field, row1, row2); });
    }

    void setFieldValue(int row, int col, QString text) override
    {
        static_cast<Self*>(this)->setCellValue(componentNumber<Number>(text), row, col);
    }

    QString getCellText(int row, int col) override
    {
        return hasCell(row, col) ? componentText(component(row, col)) : QString();
    }

    int getCellAlignment() override { return Qt::AlignLeft; }

    bool acceptsField(KnField* field) override
    {
        return field && field->isOfType(Traits::Field::getClassTypeId());
    }

    /// Writes one component of a row, undoably. A row that the field has lost is ignored; in a
    /// column that isn't there nothing changes, and the row is written as it was.
    void setCellValue(Number value, int row, int col)
    {
        if (!hasRow(row))
            return;
        withField([this, value, row, col](auto& field) {
            auto numbers = Components::read(field[row]);
            if (isComponent(col))
                numbers[static_cast<std::size_t>(col)] = value;
            executeRowEdit(m_field, row,
                [&field, &numbers, row] { field.set1Value(row, Components::make(numbers)); });
        });
    }

protected:
    /// For an editor that builds on this one and identifies itself; see WfMFieldWidget.
    WfMFVectorWidget(int tableKind, const char* name)
        : WfMFieldWidget(tableKind, name)
    {
    }

    static bool isComponent(int col) { return col >= 0 && col < Components::count; }
    bool hasCell(int row, int col) const { return isComponent(col) && hasRow(row); }

    /// Of a cell that exists.
    Number component(int row, int col) const
    {
        Number number {};
        withField([&number, row, col](const auto& field) {
            number = Components::read(field[row])[static_cast<std::size_t>(col)];
        });
        return number;
    }

private:
    /// Calls `use` with the attached field, as what it is.
    template <class Use>
    void withField(const Use& use) const
    {
        if (m_field->isOfType(Traits::Field::getClassTypeId()))
            use(static_cast<typename Traits::Field&>(*m_field));
        if constexpr (requires { typename Traits::ColorField; }) {
            if (m_field->isOfType(Traits::ColorField::getClassTypeId()))
                use(static_cast<typename Traits::ColorField&>(*m_field));
        }
    }
};
