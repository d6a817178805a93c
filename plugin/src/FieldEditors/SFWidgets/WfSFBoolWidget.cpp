// SPDX-License-Identifier: BSD-3-Clause
#include "WfSFBoolWidget.h"

#include "FieldEdit.h"
#include "KnSFields.h"
#include "LayoutMetrics.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QFrame>

WfSFBoolWidget::WfSFBoolWidget(const char* name)
    : WfSFieldWidget(name)
{
    identify(KnSFBool::getClassTypeId(), "SFBool", name, "WfSFBoolWidget");
}

void WfSFBoolWidget::load()
{
    setLabel(QStringLiteral("SFBool"));
    WfSFieldWidget::load();

    m_box = new QCheckBox(m_editionFrame);
    m_box->setObjectName(QStringLiteral("m_box"));
    m_box->setFixedSize(layoutMetric(QStringLiteral("SFBoolWidth")),
        layoutMetric(QStringLiteral("SFComponentHeight")));
    m_editLayout->addWidget(m_box, 0);
    spreadRow();
    connect(m_box, &QCheckBox::clicked, this, &WfSFBoolWidget::setCommandValue);
}

void WfSFBoolWidget::updateFromField()
{
    if (m_field)
        m_box->setChecked(static_cast<KnSFBool*>(m_field)->getValue());
    WfSFieldWidget::updateFromField();
}

void WfSFBoolWidget::applyChanges()
{
    executeFieldEdit(
        *this, m_field, [this] { static_cast<KnSFBool*>(m_field)->setValue(m_box->isChecked()); });
}
