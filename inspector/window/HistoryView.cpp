// SPDX-License-Identifier: BSD-3-Clause
#include "HistoryView.h"

#include "CrvServices.h"
#include "CrvUndoSteps.h"
#include "KnField.h"
#include "LiveNodes.h"

#include <QMouseEvent>

HistoryView::HistoryView(CrvUndoSteps* steps, QWidget* parent)
    : QUndoView(steps->stack(), parent)
{
    setObjectName(QStringLiteral("historyView"));
    setFocusPolicy(Qt::ClickFocus);
    connect(steps, &CrvUndoSteps::stepMoved, this, &HistoryView::showField);
}

/// A node that has left the graph is changed all the same, but there is nothing to be shown.
void HistoryView::showField(KnField* field)
{
    CrvServices* const services = CrvServices::getInstance();
    const KnFieldContainer* const node = field->getContainer();
    if (node == services->getSelectedNode()
        || !findLiveNodes(services->getRoots(), { node }).empty())
        services->selectField(field);
}

void HistoryView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        QUndoView::mousePressEvent(event);
}

void HistoryView::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons() == Qt::NoButton || event->buttons() == Qt::LeftButton)
        QUndoView::mouseMoveEvent(event);
}

void HistoryView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        QUndoView::mouseReleaseEvent(event);
}

void HistoryView::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        QUndoView::mouseDoubleClickEvent(event);
}
