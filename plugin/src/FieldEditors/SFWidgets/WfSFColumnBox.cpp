// SPDX-License-Identifier: BSD-3-Clause
#include "WfSFColumnBox.h"

#include "AccessibleNames.h"
#include "FittedFont.h"
#include "LayoutMetrics.h"
#include "PanelParts.h"

#include <QFrame>
#include <QLabel>
#include <QVBoxLayout>

WfSFColumnBox::WfSFColumnBox(int columns, const ColumnBoxStyle& style, const char* name)
    : WfSFieldWidget(name)
    , m_columns(columns)
    , m_style(style)
{
}

void WfSFColumnBox::load()
{
    WfSFieldWidget::load();
    m_editLayout->setSpacing(layoutMetric(QLatin1String(m_style.spacingMetric)));
    setMargins(m_editLayout, layoutMetric(QLatin1String(m_style.marginMetric)));
    for (int i = 0; i < m_columns; ++i)
        addColumn();
    // In a tall dock a label stays with its input.
    m_editionFrame->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
}

void WfSFColumnBox::addColumn()
{
    auto* const column = new QVBoxLayout;
    column->setObjectName(QLatin1String(m_style.columnName));
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(layoutMetric(QLatin1String(m_style.columnSpacingMetric)));
    column->setSizeConstraint(QLayout::SetMinimumSize);

    auto* const label = new QLabel(m_editionFrame);
    label->setObjectName(QLatin1String(m_style.labelName));
    const int labelHeight = layoutMetric(QStringLiteral("SFVecLabelHeight"));
    label->setFixedHeight(labelHeight);
    fitLabel(label, labelHeight);
    column->addWidget(label, 0);
    m_labels.push_back(label);

    const int inputHeight = layoutMetric(QStringLiteral("SFVecLineHeight"));
    QWidget* const input = makeInput(inputHeight);
    input->setObjectName(QLatin1String(m_style.inputName));
    input->setFixedHeight(inputHeight);
    column->addWidget(input, 0);
    m_inputs.push_back(input);
    m_editLayout->addLayout(column, 0);
}

void WfSFColumnBox::setLabels(const QString* nameArray)
{
    for (std::size_t i = 0; i < m_labels.size(); ++i) {
        m_labels[i]->setText(tr("<p>") + nameArray[i] + tr("</p>"));
        setInputLabel(m_inputs[i], nameArray[i]);
    }
}
