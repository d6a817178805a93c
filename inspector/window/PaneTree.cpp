// SPDX-License-Identifier: BSD-3-Clause
#include "PaneTree.h"

#include <QHeaderView>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>
#include <utility>

namespace {

constexpr int nameRoom = 12; // characters that a name keeps
constexpr int smallestStep = 3; // pixels

int levelOf(const QModelIndex& index)
{
    int level = 1;
    for (QModelIndex above = index.parent(); above.isValid(); above = above.parent())
        ++level;
    return level;
}

bool isWithin(QModelIndex index, const QModelIndex& parent, int first, int last)
{
    while (index.isValid() && index.parent() != parent)
        index = index.parent();
    return index.isValid() && index.row() >= first && index.row() <= last;
}

} // namespace

bool PaneTree::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event)
{
    const bool begins = QTreeView::edit(index, trigger, event);
    if (begins)
        m_edited = index;
    return begins;
}

/// The base class ends the editing of such a row itself, but not of one below it.
void PaneTree::rowsAboutToBeRemoved(const QModelIndex& parent, int first, int last)
{
    if (state() == EditingState && isWithin(m_edited, parent, first, last)) {
        closePersistentEditor(m_edited);
        setState(NoState);
    }
    QTreeView::rowsAboutToBeRemoved(parent, first, last);
}

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

void PaneTree::updateGeometries()
{
    QTreeView::updateGeometries();
    fitSteps();
}

void PaneTree::scrollContentsBy(int dx, int dy)
{
    QTreeView::scrollContentsBy(dx, dy);
    fitSteps();
}

// A row whose name has no room can't be read, and neither clicked nor reached by a key.
void PaneTree::fitSteps()
{
    if (m_fitting || !rootIsDecorated() || !model())
        return;
    const QScopedValueRollback fitting(m_fitting, true); // finding a row may lay out the rows
    const int bottom = viewport()->height();
    int levels = 1;
    for (QModelIndex index = indexAt(QPoint()); index.isValid() && visualRect(index).top() < bottom;
         index = indexBelow(index))
        levels = std::max(levels, levelOf(index));
    const int room
        = columnWidth(header()->logicalIndex(0)) - nameRoom * fontMetrics().averageCharWidth();
    const int widest = style()->pixelMetric(QStyle::PM_TreeViewIndentation, nullptr, this);
    setIndentation(std::clamp(room / levels, std::min(smallestStep, widest), widest));
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
