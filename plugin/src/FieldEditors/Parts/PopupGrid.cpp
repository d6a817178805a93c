// SPDX-License-Identifier: BSD-3-Clause
#include "PopupGrid.h"

#include "AccessibleNames.h"
#include "FittedFont.h"
#include "LayoutMetrics.h"
#include "PanelParts.h"
#include "PopupCloser.h"

#include <QAbstractButton>
#include <QFrame>
#include <QGridLayout>
#include <QLineEdit>

QFrame* makePopupFrame(QWidget* panel, QAbstractButton* button)
{
    auto* const popup = new QFrame(panel, Qt::Popup);
    popup->setObjectName(QStringLiteral("m_popupFrame"));
    popup->resize(layoutMetric(QStringLiteral("PopupFrameWidth")),
        layoutMetric(QStringLiteral("PopupFrameHeight")));
    popup->setFrameShape(QFrame::StyledPanel);
    popup->setFrameShadow(QFrame::Raised);
    new PopupCloser(popup, panel, button);

    auto* const grid = new QGridLayout(popup);
    shapeLayout(grid, "PopupLayoutMargin", "PopupLayoutSpacing", "m_popupFrameLayout");
    return popup;
}

void addPopupLine(QFrame* popup, QLineEdit* line, int row, int column, int columns)
{
    line->setObjectName(QStringLiteral("m_lineEdits"));
    const int gaps = 2 * layoutMetric(QStringLiteral("PopupLayoutMargin"))
        + (columns - 1) * layoutMetric(QStringLiteral("PopupLayoutSpacing"));
    const int width = (layoutMetric(QStringLiteral("PopupFrameWidth")) - gaps) / columns;
    fitNumberLine(line, QSize(width, line->sizeHint().height()));
    setInputLabel(line, QStringLiteral("row %1, column %2").arg(row + 1).arg(column + 1));
    static_cast<QGridLayout*>(popup->layout())->addWidget(line, row, column);
}

void showPopup(QFrame* popup, QLineEdit* first)
{
    popup->show();
    first->setFocus(Qt::PopupFocusReason);
    first->selectAll();
}

void settlePopupSize(QFrame* popup)
{
    popup->ensurePolished();
    popup->layout()->activate();
}
