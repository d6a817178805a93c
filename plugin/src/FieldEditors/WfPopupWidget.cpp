// SPDX-License-Identifier: BSD-3-Clause
#include "WfPopupWidget.h"

#include "AccessibleNames.h"
#include "ComponentValidator.h"
#include "LineEdits.h"
#include "OffInputs.h"
#include "PanelParts.h"
#include "Pixmaps.h"
#include "PopupGrid.h"
#include "PopupPlacement.h"

#include <QFrame>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>

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

    m_editButton = makeFocusableIconButton(getFrame(), "m_editButton", m_editPixmap);
    setInputLabel(m_editButton, QStringLiteral("edit"));
    setLooksOnly(m_editButton);
    m_buttonLayout->insertWidget(0, m_editButton, 0);
    connect(m_editButton, &QPushButton::clicked, this, &WfPopupWidget::managePopFramePos);
    m_lineEdit->setEnabled(false);

    m_popupFrame = makePopupFrame(getFrame(), m_editButton);
    for (int row = 0; row < m_rows; ++row) {
        for (int column = 0; column < m_columns; ++column) {
            auto* const line = new QLineEdit(m_popupFrame);
            addPopupLine(m_popupFrame, line, row, column, m_columns);
            m_lineEdits.push_back(line);
            connect(line, &QLineEdit::editingFinished, this, &WfPopupWidget::setFocusLeaveEvent);
            connect(
                line, &QLineEdit::returnPressed, this, qOverload<>(&WfPopupWidget::applyChanges));
        }
    }
}

bool WfPopupWidget::edited() { return isAnyModified(m_lineEdits); }

void WfPopupWidget::setValidatorKind(int kind)
{
    for (QLineEdit* line : m_lineEdits)
        setComponentValidator(kind, line);
}

void WfPopupWidget::resetCursorPositions() { resetCursors(m_lineEdits); }

void WfPopupWidget::managePopFramePos()
{
    if (m_popupFrame->isVisible()) {
        m_popupFrame->hide();
        return;
    }
    if (!isAttached())
        return;
    settlePopupSize(m_popupFrame);
    const QPoint corner = getFrame()->mapToGlobal(m_editButton->geometry().bottomRight());
    m_popupFrame->move(popupPosition(corner, QGuiApplication::primaryScreen()->availableSize(),
        m_popupFrame->size() + m_editButton->size()));
    updateFromField();
    showPopup(m_popupFrame, m_lineEdits.front());
}
