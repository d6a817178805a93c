// SPDX-License-Identifier: BSD-3-Clause
#include "WfMFMatrixWidget.h"

#include "ComponentValidator.h"
#include "CrvStrings.h"
#include "FieldRow.h"
#include "KnMFields.h"
#include "RowEdit.h"
#include "ValueComponents.h"
#include "WfMFieldTable.h"
#include "WfTablePopupLineEdit.h"

#include <algorithm>

namespace {

using Components = KbComponents<KbMatrix>;

// The overview's text is never cut to fewer characters than this.
constexpr int leastText = 512;
// The shortest text of a matrix: 16 digits and the blanks between them.
constexpr int shortestMatrix = 31;

KnMFMatrix& matrices(KnMField* field) { return static_cast<KnMFMatrix&>(*field); }

QString fieldText(const KnField& field)
{
    KbString text;
    field.get(text);
    return toQString(text);
}

} // namespace

WfMFMatrixWidget::WfMFMatrixWidget(const char* name)
    : WfTablePopupWidget(4, 4, name)
{
    identify(KnMFMatrix::getClassTypeId(), "MFMatrix", name, "WfMFMatrixWidget");
}

void WfMFMatrixWidget::load()
{
    setLabel(QStringLiteral("MFMatrix"));
    WfTablePopupWidget::load();
    setValidatorKind(FloatValidator);
}

void WfMFMatrixWidget::swapFieldValues(int row1, int row2)
{
    if (mayWriteRow(row1) && mayWriteRow(row2))
        swapRowValues(matrices(m_field), row1, row2);
}

void WfMFMatrixWidget::setFieldValue(int row, int, QString)
{
    if (!mayWriteRow(row))
        return;
    Components::Numbers numbers;
    for (std::size_t i = 0; i < numbers.size(); ++i)
        numbers[i] = componentNumber<float>(m_lineEdits[i]->text());
    executeRowEdit(m_field, row,
        [this, row, &numbers] { matrices(m_field).set1Value(row, Components::make(numbers)); });
}

QString WfMFMatrixWidget::getCellText(int, int)
{
    if (!shows(m_field))
        return QString();
    // No character is narrower than a pixel, so a text with more characters than the cell has
    // pixels is elided anyway, at a place that depends only on its beginning.
    const int longest = std::max(leastText, m_table->columnWidth(0));
    const int shownRows = longest / shortestMatrix + 1;
    if (m_field->getNum() <= shownRows)
        return fieldText(*m_field);
    KnMFMatrix beginning;
    beginning.setValues(0, shownRows, matrices(m_field).getValues());
    return fieldText(beginning).left(longest + 1);
}

int WfMFMatrixWidget::getCellAlignment() { return Qt::AlignLeft; }

bool WfMFMatrixWidget::acceptsField(KnField* field)
{
    return field && field->isOfType(KnMFMatrix::getClassTypeId());
}

QString WfMFMatrixWidget::getPopupCellText(int row, int index)
{
    if (!hasRow(row) || index < 0 || index >= Components::count)
        return QString();
    return componentText(Components::read(matrices(m_field)[row])[static_cast<std::size_t>(index)]);
}
