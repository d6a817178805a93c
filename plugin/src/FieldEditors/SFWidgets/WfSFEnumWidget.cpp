// SPDX-License-Identifier: BSD-3-Clause
#include "WfSFEnumWidget.h"

#include "CrvStrings.h"
#include "EnumNames.h"
#include "FieldEdit.h"
#include "KnSFEnum.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QFrame>
#include <QVariant>

WfSFEnumWidget::WfSFEnumWidget(const char* name)
    : WfSFieldWidget(name)
{
    identify(KnSFEnum::getClassTypeId(), "SFEnum", name, "WfSFEnumWidget");
}

void WfSFEnumWidget::load()
{
    setLabel(QStringLiteral("SFEnum"));
    WfSFieldWidget::load();
    m_comboBox = new QComboBox(m_editionFrame);
    m_comboBox->setObjectName(QStringLiteral("comboBox"));
    // Each field has names of its own, and the box must be wide enough for them.
    m_comboBox->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_editLayout->addWidget(m_comboBox, 1);
    connect(m_comboBox, &QComboBox::activated, this, &WfSFEnumWidget::setCommandValue);
}

void WfSFEnumWidget::attachField(KnField* field)
{
    m_comboBox->clear();
    for (const NamedValue& entry : namedValues(static_cast<KnSFEnum*>(field)))
        m_comboBox->insertItem(m_comboBox->count(), entry.name, QVariant());
    WfSFieldWidget::attachField(field);
}

void WfSFEnumWidget::updateFromField()
{
    KbString value;
    if (m_field)
        m_field->get(value);
    const QString text = toQString(value);
    const int index = m_comboBox->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (index >= 0)
        m_comboBox->setCurrentIndex(index);
    else
        m_comboBox->setItemText(m_comboBox->currentIndex(), text);
    WfSFieldWidget::updateFromField();
}

void WfSFEnumWidget::applyChanges()
{
    // An entry may show a text that the field has no name for. The field refuses it then, and the
    // box shows what it holds.
    const KbName name = enumName(m_comboBox->currentText());
    executeFieldEdit(
        *this, m_field, [this, &name] { static_cast<KnSFEnum*>(m_field)->setValue(name); });
    if (m_field)
        updateFromField();
}
