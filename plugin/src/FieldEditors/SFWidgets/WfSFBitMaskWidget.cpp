// SPDX-License-Identifier: BSD-3-Clause
#include "WfSFBitMaskWidget.h"

#include "EnumNames.h"
#include "KnSFBitMask.h"

#include <QCheckBox>
#include <QFrame>
#include <QVBoxLayout>

WfSFBitMaskWidget::WfSFBitMaskWidget(const char* name)
    : WfSFieldWidget(name)
{
    identify(KnSFBitMask::getClassTypeId(), "SFBitMask", name, "WfSFBitMaskWidget");
}

WfSFBitMaskWidget::~WfSFBitMaskWidget() { clearCheckBoxes(); }

void WfSFBitMaskWidget::load()
{
    setLabel(QStringLiteral("SFBitMask"));
    WfSFieldWidget::load();
    // In a tall dock the boxes stay together.
    m_editionFrame->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    m_checkBoxLayout = std::make_unique<QVBoxLayout>();
    m_checkBoxLayout->setObjectName(QStringLiteral("m_checkBoxLayout"));
}

void WfSFBitMaskWidget::unload()
{
    clearCheckBoxes();
    WfSFieldWidget::unload();
}

void WfSFBitMaskWidget::attachField(KnField* field)
{
    clearCheckBoxes();
    WfSFieldWidget::attachField(field);
    buildCheckBoxes();
}

void WfSFBitMaskWidget::updateFromField() { WfSFieldWidget::updateFromField(); }

void WfSFBitMaskWidget::applyChanges() { }

void WfSFBitMaskWidget::buildCheckBoxes()
{
    auto* const field = static_cast<KnSFBitMask*>(m_field);
    const int mask = field->getValue();
    for (const NamedValue& entry : namedValues(field)) {
        if (entry.value == 0)
            continue;
        auto* const box = new QCheckBox(entry.name, m_editionFrame);
        box->setObjectName(QStringLiteral("m_checkBoxes"));
        box->setChecked((mask & entry.value) != 0);
        m_checkBoxLayout->addWidget(box, 0);
        connect(box, &QCheckBox::clicked, this, &WfSFBitMaskWidget::setBitMaskValue);
        m_checkBoxes.append(box);
    }
    if (!m_checkBoxes.isEmpty())
        m_editLayout->addLayout(m_checkBoxLayout.get(), 0);
    spreadRow();
}

void WfSFBitMaskWidget::clearCheckBoxes()
{
    if (m_checkBoxes.isEmpty())
        return;
    // Not by deleteLater(): no box of the previous field may be left when the next one is shown.
    for (QCheckBox* box : m_checkBoxes) {
        m_checkBoxLayout->removeWidget(box);
        delete box;
    }
    m_checkBoxes.clear();
    m_editLayout->removeItem(m_checkBoxLayout.get());
}

void WfSFBitMaskWidget::setBitMaskValue()
{
    if (!mayWrite(m_field))
        return;
    auto* const field = static_cast<KnSFBitMask*>(m_field);
    int mask = 0;
    for (auto box = m_checkBoxes.crbegin(); box != m_checkBoxes.crend(); ++box) {
        int value = 0;
        field->findEnumValue(enumName((*box)->text()), value);
        if ((*box)->isChecked())
            mask |= value;
    }
    *field = mask;
}
