// SPDX-License-Identifier: BSD-3-Clause
#include "WfSFColorWidget.h"

#include <QLineEdit>
#include <QPushButton>

void WfSFColorWidget::load()
{
    WfSFColorEditor::load();
    connect(m_lines[0], &QLineEdit::textChanged, this, &WfSFColorWidget::changeRValue);
    connect(m_lines[1], &QLineEdit::textChanged, this, &WfSFColorWidget::changeGValue);
    connect(m_lines[2], &QLineEdit::textChanged, this, &WfSFColorWidget::changeBValue);
    connect(m_colorDisp, &QPushButton::clicked, this, &WfSFColorWidget::getColorEditor);
}
