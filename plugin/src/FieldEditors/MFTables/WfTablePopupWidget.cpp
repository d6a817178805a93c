// SPDX-License-Identifier: BSD-3-Clause
#include "WfTablePopupWidget.h"

#include "AccessibleNames.h"
#include "ComponentValidator.h"
#include "LayoutMetrics.h"
#include "OffInputs.h"
#include "PanelParts.h"
#include "Pixmaps.h"
#include "PopupGrid.h"
#include "PopupPlacement.h"
#include "ValueComponents.h"
#include "WfMFieldTable.h"
#include "WfTablePopupLineEdit.h"

#include <QFrame>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScreen>
#include <QSignalBlocker>

WfTablePopupWidget::WfTablePopupWidget(int rows, int columns, const char* name)
    : WfMFieldWidget(name)
    , m_editPixmap(editPixmap())
    , m_rows(rows)
    , m_columns(columns)
{
    if (!name)
        setObjectName(QStringLiteral("WfTablePopupWidget"));
}

void WfTablePopupWidget::load()
{
    WfMFieldWidget::load();

    m_editButton = makeIconButton(getFrame(), "m_editButton", m_editPixmap);
    setInputLabel(m_editButton, QStringLiteral("edit"));
    setLooksOnly(m_editButton);
    m_accessMoveSpacer->changeSize(layoutMetric(QStringLiteral("MFAccessMoveSpacerWidth"))
            - layoutMetric(QStringLiteral("buttonWidth")),
        layoutMetric(QStringLiteral("MFAccessMoveSpacerHeight")), QSizePolicy::Expanding,
        QSizePolicy::Minimum);
    m_buttonsLayout->insertWidget(4, m_editButton);
    m_table->setEnabled(false);

    buildPopup();
    shapeColumns(1);
    connect(m_editButton, &QPushButton::clicked, this, &WfTablePopupWidget::setEditFrame);
}

void WfTablePopupWidget::buildPopup()
{
    m_popupFrame = makePopupFrame(getFrame(), m_editButton);
    m_lineEdits.resize(static_cast<std::size_t>(m_rows) * static_cast<std::size_t>(m_columns));
    for (int row = 0; row < m_rows; ++row) {
        for (int column = 0; column < m_columns; ++column) {
            const int index = row + column * m_columns;
            auto* const line = new WfTablePopupLineEdit(index, this, m_popupFrame, "m_lineEdits");
            addPopupLine(m_popupFrame, line, row, column, m_columns);
            m_lineEdits[static_cast<std::size_t>(index)] = line;
            connect(line, &QLineEdit::textChanged, line, &WfTablePopupLineEdit::setCurrentValue);
        }
    }
}

void WfTablePopupWidget::setValidatorKind(int kind)
{
    for (QLineEdit* line : m_lineEdits)
        setComponentValidator(kind, line);
}

QString WfTablePopupWidget::getPopupCellText(int, int) { return QString(); }

void WfTablePopupWidget::updateFromField()
{
    const int row = m_table->currentRow();
    WfMFieldWidget::updateFromField();
    if (!m_popupFrame || !m_popupFrame->isVisible())
        return;
    // An open popup must show what the field holds now, or the next key would write stale numbers
    // back. But if the current row has changed, what is being typed belongs to the old one.
    if (m_table->currentRow() == row)
        fill(true);
    else
        m_popupFrame->hide();
}

/// Fills the lines from the current row. With `keepTyped` a line keeps its text if that already
/// means the row's number, such as "1.0" for 1.
void WfTablePopupWidget::fill(bool keepTyped)
{
    const int row = m_table->currentRow();
    const bool isRow = hasRow(row);
    // Without a row there is nothing to edit; disabled lines and a tool tip say so.
    m_popupFrame->setToolTip(
        isRow ? QString() : QStringLiteral("Choose a row with the quick access to edit it"));
    for (std::size_t i = 0; i < m_lineEdits.size(); ++i) {
        QLineEdit* const line = m_lineEdits[i];
        line->setEnabled(isRow);
        if (!isRow)
            continue;
        const QString text = getPopupCellText(row, static_cast<int>(i));
        if (keepTyped && componentText(componentNumber<float>(line->text())) == text)
            continue;
        // Filling a line is not an edit.
        const QSignalBlocker blocker(line);
        line->setText(text);
        line->setCursorPosition(0);
    }
}

void WfTablePopupWidget::placePopup()
{
    settlePopupSize(m_popupFrame);
    const QFrame* const frame = getFrame();
    const QPoint wanted = popupPositionLeftOf(
        frame->mapToGlobal(frame->geometry().topLeft()), m_popupFrame->width());
    // At the left edge of a screen there is no room beside the panel.
    const QScreen* const screen = QGuiApplication::screenAt(wanted);
    m_popupFrame->move(positionInside(
        (screen ? screen : frame->screen())->availableGeometry(), wanted, m_popupFrame->size()));
}

void WfTablePopupWidget::setEditFrame()
{
    fill(false);
    if (m_popupFrame->isVisible()) {
        m_popupFrame->hide();
        return;
    }
    placePopup();
    showPopup(m_popupFrame, m_lineEdits.front());
}
