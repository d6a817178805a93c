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

/// What the editors share whose arrays hold values of a few numbers each: a row for each value, a
/// column for each component. `Self` is the editor's own class: cells are written through its
/// setCellValue(), which is virtual in the two editors that the colour editors derive from, and
/// only there. `Traits` has
///   `Field`: the field class,
///   `typeName`, `className`: label and extension name, and the default object name,
///   `editorKind`: the EditorKind of the table's cells,
///   `ColorField`, optional: the class of the colour field with the same numbers, which a derived
///   editor attaches.
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
        if (mayWriteRow(row1) && mayWriteRow(row2))
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

    /// Writes one component of a row, undoably. Does nothing for a row that the field no longer
    /// has. For a column that doesn't exist the row is written unchanged.
    void setCellValue(Number value, int row, int col)
    {
        if (!mayWriteRow(row))
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
    /// For a derived editor, which calls identify() itself. `tableKind` is a TableKind.
    WfMFVectorWidget(int tableKind, const char* name)
        : WfMFieldWidget(tableKind, name)
    {
    }

    static bool isComponent(int col) { return col >= 0 && col < Components::count; }
    bool hasCell(int row, int col) const { return isComponent(col) && hasRow(row); }

    /// The component that an existing cell shows.
    Number component(int row, int col) const
    {
        Number number {};
        withField([&number, row, col](const auto& field) {
            number = Components::read(field[row])[static_cast<std::size_t>(col)];
        });
        return number;
    }

private:
    /// Calls `use` with the attached field, cast to its class.
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
