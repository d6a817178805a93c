// SPDX-License-Identifier: BSD-3-Clause
#include "PaneTree.h"

#include <QPainter>
#include <QScrollBar>

#include <utility>

void PaneTree::focusInEvent(QFocusEvent* event)
{
    if (currentIndex().isValid()) {
        QTreeView::focusInEvent(event);
        return;
    }
    QAbstractScrollArea::focusInEvent(event);
    viewport()->update();
}

void PaneTree::setEmptyText(const QString& text)
{
    m_emptyText = text;
    viewport()->update();
}

void PaneTree::paintEvent(QPaintEvent* event)
{
    QTreeView::paintEvent(event);
    if (m_emptyText.isEmpty() || !model() || model()->rowCount() > 0)
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    const int margin = 2 * fontMetrics().averageCharWidth();
    painter.drawText(viewport()->rect().adjusted(margin, margin, -margin, -margin),
        Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, m_emptyText);
}

void PaneTree::holdPlace()
{
    // What was held before the last layout is what the person still sees.
    if (!m_held.isEmpty() || verticalScrollBar()->value() == 0)
        return;
    // All that are in sight, since the first may be among those that go.
    const int bottom = viewport()->height();
    for (QModelIndex index = indexAt(QPoint()); index.isValid() && visualRect(index).top() < bottom;
         index = indexBelow(index))
        m_held.append(QPersistentModelIndex(index));
}

void PaneTree::doItemsLayout()
{
    QTreeView::doItemsLayout();
    const QList<QPersistentModelIndex> held = std::exchange(m_held, {});
    for (const QPersistentModelIndex& index : held) {
        if (!index.isValid())
            continue;
        scrollTo(index, PositionAtTop);
        break;
    }
}
