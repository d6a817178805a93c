// SPDX-License-Identifier: BSD-3-Clause
#include "PaneWalk.h"

#include <QApplication>
#include <QDockWidget>
#include <QMainWindow>
#include <QMenu>
#include <QToolBar>

#include <algorithm>
#include <tuple>

namespace {

bool isSeen(const QWidget* pane)
{
    // One behind another tab is shown all the same, but nowhere.
    return pane->isVisible() && !pane->visibleRegion().isEmpty();
}

// The widgets of a pane that take the focus, in the order of the tab key.
QList<QWidget*> stopsIn(QWidget* pane)
{
    QList<QWidget*> stops;
    for (QWidget* widget = pane->nextInFocusChain(); widget != pane;
         widget = widget->nextInFocusChain()) {
        const bool takesFocus = (widget->focusPolicy() & Qt::TabFocus) == Qt::TabFocus
            && widget->isVisible() && widget->isEnabled() && !widget->focusProxy();
        if (takesFocus && pane->isAncestorOf(widget) && widget->window() == pane->window())
            stops.append(widget);
    }
    return stops;
}

// Also for an input inside a stop, such as the line in a cell of a table.
qsizetype stopOf(const QList<QWidget*>& stops, const QWidget* focus)
{
    for (const QWidget* widget = focus; widget; widget = widget->parentWidget()) {
        const auto found = std::find(stops.begin(), stops.end(), widget);
        if (found != stops.end())
            return found - stops.begin();
    }
    return -1;
}

void giveFocus(QWidget* widget, bool forward)
{
    if (!widget->isActiveWindow())
        widget->activateWindow();
    widget->setFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
}

qsizetype next(qsizetype index, qsizetype count, bool forward)
{
    return (index + (forward ? 1 : count - 1)) % count;
}

} // namespace

PaneWalk::PaneWalk(QMainWindow* window, const QList<QWidget*>& first)
    : QObject(window)
    , m_window(window)
    , m_first(first)
{
}

void PaneWalk::addActions(QMenu* menu)
{
    menu->addAction(tr("&Next Pane"), QKeySequence(Qt::Key_F6), this, [this] { walk(true); });
    menu->addAction(
        tr("Pre&vious Pane"), QKeySequence(Qt::SHIFT | Qt::Key_F6), this, [this] { walk(false); });
}

bool PaneWalk::step(bool forward)
{
    QList<QWidget*> stops;
    for (QWidget* pane : panes()) {
        if (pane->window() == m_window)
            stops += stopsIn(pane);
    }
    const qsizetype from = stopOf(stops, QApplication::focusWidget());
    if (from < 0)
        return false;
    giveFocus(stops.at(next(from, stops.size(), forward)), forward);
    return true;
}

bool PaneWalk::enter(QWidget* pane)
{
    const QList<QWidget*> stops = stopsIn(pane);
    if (!stops.isEmpty())
        giveFocus(stops.constFirst(), true);
    return !stops.isEmpty();
}

QList<QWidget*> PaneWalk::panes() const
{
    const auto place = [this](QWidget* pane) {
        constexpr int floating = 4;
        constexpr int toolBar = 5;
        const QList<Qt::DockWidgetArea> areas { Qt::RightDockWidgetArea, Qt::BottomDockWidgetArea,
            Qt::LeftDockWidgetArea, Qt::TopDockWidgetArea };
        auto* const dock = qobject_cast<QDockWidget*>(pane);
        int rank = toolBar;
        if (dock && dock->isFloating())
            rank = floating;
        else if (dock)
            rank = static_cast<int>(areas.indexOf(m_window->dockWidgetArea(dock)));
        return std::make_tuple(rank, pane->y(), pane->x());
    };
    QList<QWidget*> others;
    for (QDockWidget* dock : m_window->findChildren<QDockWidget*>())
        others.append(dock);
    for (QToolBar* toolBar : m_window->findChildren<QToolBar*>(Qt::FindDirectChildrenOnly))
        others.append(toolBar);
    others.removeIf([this](QWidget* pane) { return m_first.contains(pane); });
    std::sort(others.begin(), others.end(),
        [&place](QWidget* left, QWidget* right) { return place(left) < place(right); });

    QList<QWidget*> panes = m_first + others;
    panes.removeIf([](QWidget* pane) { return !isSeen(pane); });
    return panes;
}

void PaneWalk::walk(bool forward)
{
    QList<QWidget*> ways = panes();
    ways.removeIf([](QWidget* pane) { return stopsIn(pane).isEmpty(); });
    if (ways.isEmpty())
        return;
    const qsizetype from = stopOf(ways, QApplication::focusWidget());
    QWidget* const pane = from < 0 ? ways.constFirst() : ways.at(next(from, ways.size(), forward));
    QWidget* const last = pane->focusWidget();
    if (last && stopsIn(pane).contains(last))
        giveFocus(last, true);
    else
        enter(pane);
}
