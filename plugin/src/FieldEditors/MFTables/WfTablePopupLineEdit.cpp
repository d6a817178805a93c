// SPDX-License-Identifier: BSD-3-Clause
#include "WfTablePopupLineEdit.h"

#include "WfMFieldTable.h"
#include "WfTablePopupWidget.h"

WfTablePopupLineEdit::WfTablePopupLineEdit(
    int, WfTablePopupWidget* popup, QWidget* parent, const char* name)
    : QLineEdit(parent)
    , m_popup(popup)
{
    setObjectName(QLatin1String(name));
    setAlignment(Qt::AlignLeft);
}

void WfTablePopupLineEdit::setCurrentValue(QString)
{
    m_popup->setFieldValue(m_popup->m_table->currentRow(), -1, QString());
}
