// SPDX-License-Identifier: BSD-3-Clause
#include "WfPopupWidget.h"

#include "ComponentValidator.h"
#include "FittedFont.h"
#include "LayoutMetrics.h"
#include "Pixmaps.h"
#include "PopupCloser.h"
#include "PopupPlacement.h"

#include <QFrame>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>

#include <algorithm>

WfPopupWidget::WfPopupWidget(int rows, int columns, const char* name)
    : WfSFLineWidget(name)
    , m_editPixmap(editPixmap())
    , m_rows(rows)
    , m_columns(columns)
{
    if (!name)
        setObjectName(QStringLiteral("WfPopupWidget"));
}

void WfPopupWidget::load()
{
    WfSFLineWidget::load();

    m_editButton = makeButton("m_editButton", m_editPixmap);
    m_buttonLayout->insertWidget(0, m_editButton, 0);
    connect(m_editButton, &QPushButton::clicked, this, &WfPopupWidget::managePopFramePos);
    m_lineEdit->setEnabled(false);

    m_popupFrame = new QFrame(getFrame(), Qt::Popup);
    m_popupFrame->setObjectName(QStringLiteral("m_popupFrame"));
    m_popupFrame->resize(layoutMetric(QStringLiteral("PopupFrameWidth")),
        layoutMetric(QStringLiteral("PopupFrameHeight")));
    m_popupFrame->setFrameShape(QFrame::StyledPanel);
    m_popupFrame->setFrameShadow(QFrame::Raised);
    new PopupCloser(m_popupFrame, getFrame(), m_editButton);

    auto* const grid = new QGridLayout(m_popupFrame);
    const int margin = layoutMetric(QStringLiteral("PopupLayoutMargin"));
    const int spacing = layoutMetric(QStringLiteral("PopupLayoutSpacing"));
    grid->setContentsMargins(margin, margin, margin, margin);
    grid->setSpacing(spacing);
    grid->setObjectName(QStringLiteral("m_popupFrameLayout"));
    const int cellWidth
        = (m_popupFrame->width() - 2 * margin - (m_columns - 1) * spacing) / m_columns;
    for (int row = 0; row < m_rows; ++row) {
        for (int column = 0; column < m_columns; ++column) {
            auto* const line = new QLineEdit(m_popupFrame);
            line->setObjectName(QStringLiteral("m_lineEdits"));
            fitNumberLine(line, QSize(cellWidth, line->sizeHint().height()));
            grid->addWidget(line, row, column);
            m_lineEdits.push_back(line);
            connect(line, &QLineEdit::editingFinished, this, &WfPopupWidget::setFocusLeaveEvent);
            connect(
                line, &QLineEdit::returnPressed, this, qOverload<>(&WfPopupWidget::applyChanges));
        }
    }
}

bool WfPopupWidget::edited()
{
    return std::any_of(m_lineEdits.begin(), m_lineEdits.end(),
        [](const QLineEdit* line) { return line->isModified(); });
}

void WfPopupWidget::setValidatorKind(int kind)
{
    for (QLineEdit* line : m_lineEdits)
        setComponentValidator(kind, line);
}

void WfPopupWidget::resetCursorPositions()
{
    for (QLineEdit* line : m_lineEdits)
        line->setCursorPosition(0);
}

void WfPopupWidget::managePopFramePos()
{
    if (m_popupFrame->isVisible()) {
        m_popupFrame->hide();
        return;
    }
    // Before it was ever shown the frame doesn't know yet how much its lines need.
    m_popupFrame->ensurePolished();
    m_popupFrame->layout()->activate();
    const QPoint corner = getFrame()->mapToGlobal(m_editButton->geometry().bottomRight());
    m_popupFrame->move(popupPosition(corner, QGuiApplication::primaryScreen()->availableSize(),
        m_popupFrame->size() + m_editButton->size()));
    updateFromField();
    m_popupFrame->show();
}
