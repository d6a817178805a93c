// SPDX-License-Identifier: BSD-3-Clause
#include "WfSFRotationWidget.h"

#include <QLineEdit>

void WfSFRotationWidget::load()
{
    WfSFVectorWidget::load();
    for (QLineEdit* line : m_lines) {
        disconnect(
            line, &QLineEdit::editingFinished, this, &WfSFRotationWidget::setFocusLeaveEvent);
    }
}
