// SPDX-License-Identifier: BSD-3-Clause
#include "WfMFLineWidget.h"

#include "CrvStrings.h"
#include "FieldRow.h"

WfMFLineWidget::WfMFLineWidget(const char* name)
    : WfMFieldWidget(name)
{
    if (!name)
        setObjectName(QStringLiteral("WfMFLineWidget"));
}

void WfMFLineWidget::load()
{
    WfMFieldWidget::load();
    shapeColumns(1);
}

void WfMFLineWidget::swapFieldValues(int row1, int row2)
{
    if (mayWriteRow(row1) && mayWriteRow(row2))
        swapRowTexts(m_field, row1, row2);
}

void WfMFLineWidget::setFieldValue(int row, int, QString text)
{
    if (mayWriteRow(row))
        m_field->set1(row, toKbString(text));
}

QString WfMFLineWidget::getCellText(int row, int col)
{
    KbString text;
    if (col < 1 && hasRow(row))
        m_field->get1(row, text);
    return toQString(text);
}

bool WfMFLineWidget::acceptsField(KnField* field)
{
    return field && field->isOfType(KnMField::getClassTypeId());
}
