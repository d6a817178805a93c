// SPDX-License-Identifier: BSD-3-Clause
#include "PanelParts.h"

#include "LayoutMetrics.h"

#include <QLabel>
#include <QLayout>
#include <QPushButton>

void setMargins(QLayout* layout, int margin)
{
    layout->setContentsMargins(margin, margin, margin, margin);
}

void shapeLayout(
    QLayout* layout, const char* marginMetric, const char* spacingMetric, const char* name)
{
    setMargins(layout, layoutMetric(QLatin1String(marginMetric)));
    layout->setSpacing(layoutMetric(QLatin1String(spacingMetric)));
    layout->setObjectName(QLatin1String(name));
}

void drawBox(QFrame* frame, const char* lineWidthMetric)
{
    frame->setFrameShape(QFrame::Box);
    frame->setFrameShadow(QFrame::Plain);
    frame->setLineWidth(layoutMetric(QLatin1String(lineWidthMetric)));
}

void styleTitleLabel(QLabel* label)
{
    label->setObjectName(QStringLiteral("m_label"));
    QFont font = label->font();
    font.setPointSize(layoutMetric(QStringLiteral("labelPointSize")));
    label->setFont(font);
    drawBox(label, "labelLineWidth");
    label->setScaledContents(true);
}

QString centredText(const QString& text)
{
    return QStringLiteral("<p align=\"center\">") + text + QStringLiteral("</p>");
}

QPushButton* makeFocusableIconButton(QWidget* parent, const char* name, const QPixmap& icon)
{
    auto* const button = new QPushButton(parent);
    button->setObjectName(QLatin1String(name));
    button->setMaximumSize(
        layoutMetric(QStringLiteral("buttonWidth")), layoutMetric(QStringLiteral("buttonHeight")));
    button->setIcon(QIcon(icon));
    button->setAutoDefault(true);
    return button;
}

QPushButton* makeIconButton(QWidget* parent, const char* name, const QPixmap& icon)
{
    QPushButton* const button = makeFocusableIconButton(parent, name, icon);
    button->setAutoDefault(false);
    button->setFocusPolicy(Qt::NoFocus);
    return button;
}
