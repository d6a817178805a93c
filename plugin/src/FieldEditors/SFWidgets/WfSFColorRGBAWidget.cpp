// SPDX-License-Identifier: BSD-3-Clause
#include "WfSFColorRGBAWidget.h"

#include <QLineEdit>
#include <QPushButton>

void WfSFColorRGBAWidget::load()
{
    WfSFColorEditor::load();
    connect(m_lines[0], &QLineEdit::textChanged, this, &WfSFColorRGBAWidget::changeRValue);
    connect(m_lines[1], &QLineEdit::textChanged, this, &WfSFColorRGBAWidget::changeGValue);
    connect(m_lines[2], &QLineEdit::textChanged, this, &WfSFColorRGBAWidget::changeBValue);
    connect(m_lines[3], &QLineEdit::textChanged, this, &WfSFColorRGBAWidget::changeAValue);
    connect(m_colorDisp, &QPushButton::clicked, this, &WfSFColorRGBAWidget::getColorEditor);
}
