// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "EditorKind.h"
#include "FieldRangeTable.h"
#include "KnMFields.h"
#include "WfMFLineWidget.h"
#include "WfMFieldTable.h"

#include <QLatin1String>

/// A member of the line family. `Traits` has
///   `Field`: the field class,
///   `typeName`, `className`: label and extension name, and the default object name,
///   `editorKind`: of the table's cells.
/// The editors of reals choose a range for each field, too, and their traits have
///   `defaultField`: the row of the range table for a field of any other node,
///   `rangeMin(range)`, `rangeMax(range)`: the limits that a range has for the type.
template <class Traits>
class WfMFLineWidgetOf : public WfMFLineWidget {
public:
    explicit WfMFLineWidgetOf(const char* name = nullptr)
        : WfMFLineWidget(name)
    {
        identify(Traits::Field::getClassTypeId(), Traits::typeName, name, Traits::className);
    }

    void load() override
    {
        setLabel(QLatin1String(Traits::typeName));
        WfMFLineWidget::load();
        m_table->setEditorKind(Traits::editorKind);
    }

    bool acceptsField(KnField* field) override
    {
        if (!field || !field->isOfType(Traits::Field::getClassTypeId()))
            return false;
        if constexpr (requires { Traits::defaultField; })
            takeRange(*field);
        return true;
    }

private:
    void takeRange(const KnField& field)
    {
        m_fieldRange = FieldRangeTable().getForRealField(field, Traits::defaultField);
        shapeColumns(1);
        m_table->setEditorKind(Traits::editorKind);
        m_table->setRealRange(Traits::rangeMin(m_fieldRange), Traits::rangeMax(m_fieldRange));
        m_table->setBounded(m_fieldRange.isBounded());
    }
};
