// SPDX-License-Identifier: BSD-3-Clause
#include "WfSFLineBox.h"

#include "ComponentValidator.h"
#include "FittedFont.h"
#include "LineEdits.h"
#include "ValueComponents.h"

#include <QFrame>
#include <QLineEdit>

WfSFLineBox::WfSFLineBox(
    int columns, const ColumnBoxStyle& style, Qt::Alignment alignment, const char* name)
    : WfSFColumnBox(columns, style, name)
    , m_alignment(alignment)
{
}

QWidget* WfSFLineBox::makeInput(int height)
{
    auto* const line = new QLineEdit(m_editionFrame);
    line->setAlignment(m_alignment);
    fitNumberLine(line, height);
    setComponentValidator(FloatValidator, line);
    connect(line, &QLineEdit::editingFinished, this, &WfSFLineBox::setFocusLeaveEvent);
    connect(line, &QLineEdit::returnPressed, this, &WfSFLineBox::setCommandValue);
    m_lines.push_back(line);
    return line;
}

bool WfSFLineBox::edited() { return isAnyModified(m_lines); }

void WfSFLineBox::resetCursorPositions() { resetCursors(m_lines); }

void WfSFLineBox::showNumbers(const float* numbers)
{
    for (std::size_t i = 0; i < m_lines.size(); ++i)
        refreshLine(m_lines[i], componentText(numbers[i]));
    resetCursorPositions();
}

float WfSFLineBox::number(std::size_t column) const
{
    return componentNumber<float>(m_lines[column]->text());
}
