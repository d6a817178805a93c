// SPDX-License-Identifier: BSD-3-Clause
#include "WfSFColorBox.h"

#include "AccessibleNames.h"
#include "ColorChannels.h"
#include "FittedFont.h"
#include "LayoutMetrics.h"
#include "LineEdits.h"
#include "PanelParts.h"
#include "ValueComponents.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <cstring>

WfSFColorBox::WfSFColorBox(const ColorBoxStyle& style, const char* name)
    : WfSFieldWidget(name)
    , m_channels(std::strlen(style.channels))
    , m_style(style)
{
}

void WfSFColorBox::load()
{
    WfSFieldWidget::load();

    m_colorDisp = new QPushButton(m_editionFrame);
    m_colorDisp->setObjectName(QStringLiteral("m_colorDisp"));
    m_colorDisp->setFixedHeight(layoutMetric(QStringLiteral("SFComponentHeight")));
    m_colorDisp->setFixedWidth(layoutMetric(QStringLiteral("SFColorDispWidth")));
    setInputLabel(m_colorDisp, tr("colour"));
    displayColor(QColor(0, 0, 0, 255));

    m_editLayout->setSpacing(layoutMetric(QStringLiteral("SFColorSpacing")));
    setMargins(m_editLayout, layoutMetric(QStringLiteral("SFColorMargin")));
    m_editLayout->addWidget(m_colorDisp, 0);
    for (const char* letter = m_style.channels; *letter; ++letter)
        addChannel(QLatin1Char(*letter));
}

void WfSFColorBox::addChannel(QChar letter)
{
    const int height = layoutMetric(QStringLiteral("SFComponentHeight"));
    auto* const layout = new QHBoxLayout;
    layout->setObjectName(QLatin1String(m_style.layoutName));
    layout->setSpacing(layoutMetric(QLatin1String(m_style.interSpacingMetric)));

    auto* const label = new QLabel(m_editionFrame);
    label->setObjectName(QLatin1String(m_style.labelName));
    label->setFixedHeight(height);
    fitLabel(label, height);
    const QString text = QStringLiteral("<p align=\"right\">%1</p>").arg(letter);
    label->setText(tr(text.toLatin1().constData()));
    layout->addWidget(label, 0);

    auto* const line = new QLineEdit(tr("0"), m_editionFrame);
    line->setObjectName(QLatin1String(m_style.lineName));
    line->setFixedHeight(height);
    fitNumberLine(line, height);
    setInputLabel(line, letter);
    layout->addWidget(line, 0);
    m_lines.push_back(line);

    layout->setSizeConstraint(QLayout::SetMinimumSize);
    m_editLayout->addLayout(layout, 0);
    connect(line, &QLineEdit::returnPressed, this, &WfSFColorBox::setCommandValue);
    connect(line, &QLineEdit::editingFinished, this, &WfSFColorBox::setFocusLeaveEvent);
}

bool WfSFColorBox::edited() { return isAnyModified(m_lines); }

QColor WfSFColorBox::color() const
{
    return channelColor(m_channels.data(), static_cast<int>(m_channels.size()));
}

void WfSFColorBox::changeChannel(std::size_t channel, const QString& text)
{
    m_channels[channel] = componentNumber<float>(text);
    updateColorDisplay();
}

void WfSFColorBox::fillLines()
{
    // A line whose text changes sets its channel to the number that the text stands for.
    for (std::size_t i = 0; i < m_lines.size(); ++i)
        refreshLine(m_lines[i], componentText(m_channels[i]));
}

void WfSFColorBox::showChannels()
{
    fillLines();
    resetCursors(m_lines);
    updateColorDisplay();
}

void WfSFColorBox::updateColorDisplay()
{
    const QColor shown = color();
    if (shown.isValid())
        displayColor(shown);
}

void WfSFColorBox::displayColor(const QColor& color)
{
    QPixmap pixmap(m_colorDisp->rect().size());
    pixmap.fill(color);
    m_colorDisp->setIcon(QIcon(pixmap));
}

void WfSFColorBox::chooseColor()
{
    const KnField* const field = m_field;
    const QColor chosen
        = QColorDialog::getColor(color(), getFrame(), QString(), m_style.dialogOption);
    // The program keeps running behind the dialog. A colour chosen for one field must not reach
    // another.
    if (!chosen.isValid() || !mayWrite(field))
        return;
    colorChannels(chosen, m_channels.data(), static_cast<int>(m_channels.size()));
    fillLines();
    setCommandValue();
}
