// SPDX-License-Identifier: BSD-3-Clause
#include "WfSFFilePathStringWidget.h"

#include "AccessibleNames.h"
#include "FileDrop.h"

#include <QFileDialog>
#include <QFrame>
#include <QPushButton>

void WfSFFilePathStringWidget::load()
{
    WfSFTextWidget::load();
    m_openFileButton = new QPushButton(m_editionFrame);
    QSizePolicy policy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    policy.setHeightForWidth(m_openFileButton->sizePolicy().hasHeightForWidth());
    m_openFileButton->setSizePolicy(policy);
    m_openFileButton->setObjectName(QStringLiteral("openFileButton"));
    m_openFileButton->setText(QStringLiteral("..."));
    setInputLabel(m_openFileButton, tr("Open File"));
    m_editLayout->addWidget(m_openFileButton, 2);
    connect(
        m_openFileButton, &QPushButton::clicked, this, &WfSFFilePathStringWidget::openFileDialog);
    for (QWidget* target :
        { static_cast<QWidget*>(m_lineEdit), static_cast<QWidget*>(m_openFileButton) })
        new FileDrop(target, [this](const QString& path) { takePath(path); });
}

void WfSFFilePathStringWidget::openFileDialog()
{
    const KnField* const field = m_field;
    const QString path = QFileDialog::getOpenFileName(getWidget(), tr("Open File"));
    // The program keeps running behind the dialog. A path chosen for one field must not reach
    // another.
    if (!path.isEmpty() && shows(field))
        takePath(path);
}

void WfSFFilePathStringWidget::takePath(const QString& path)
{
    if (!mayWrite(m_field))
        return;
    m_lineEdit->setText(path);
    applyChanges();
}
