// SPDX-License-Identifier: BSD-3-Clause
#include "Targets.h"

#include "StepRandom.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDockWidget>
#include <QHeaderView>
#include <QMenu>
#include <QMenuBar>
#include <QTabBar>

using namespace Qt::StringLiterals;

namespace {

bool isReachable(const QWidget* widget)
{
    return widget->isVisible() && widget->isEnabled() && !widget->visibleRegion().isEmpty()
        && !widget->testAttribute(Qt::WA_TransparentForMouseEvents);
}

/// Nobody points at a tool tip, or at the picture that a drag carries along.
bool isForHands(const QWidget* window)
{
    return window->isVisible() && window->windowHandle() && window->windowType() != Qt::ToolTip
        && !window->windowFlags().testFlag(Qt::WindowTransparentForInput);
}

void collect(QWidget* widget, std::vector<QWidget*>& widgets)
{
    if (!isReachable(widget))
        return;
    widgets.push_back(widget);
    for (QObject* child : widget->children()) {
        auto* const part = qobject_cast<QWidget*>(child);
        if (part && !part->isWindow())
            collect(part, widgets);
    }
}

/// Where the contents of a widget say what may be pointed at; empty if they don't.
std::vector<QRect> partsOf(const QWidget* widget)
{
    std::vector<QRect> parts;
    if (const auto* const menu = qobject_cast<const QMenu*>(widget)) {
        for (QAction* action : menu->actions()) {
            if (action->isVisible() && action->isEnabled() && !action->isSeparator())
                parts.push_back(menu->actionGeometry(action));
        }
    } else if (const auto* const bar = qobject_cast<const QMenuBar*>(widget)) {
        for (QAction* action : bar->actions())
            parts.push_back(bar->actionGeometry(action));
    } else if (const auto* const tabs = qobject_cast<const QTabBar*>(widget)) {
        for (int i = 0; i < tabs->count(); ++i)
            parts.push_back(tabs->tabRect(i));
    } else if (const auto* const view = qobject_cast<QAbstractItemView*>(widget->parent());
               view && widget == view->viewport() && !qobject_cast<const QHeaderView*>(view)) {
        // Row after row, as far as the view shows them.
        for (int y = 2; y < widget->height();) {
            const QRect cell = view->visualRect(view->indexAt({ 3, y }));
            if (cell.isEmpty())
                break;
            parts.push_back(QRect(0, cell.top(), widget->width(), cell.height()));
            y = qMax(cell.bottom() + 3, y + 1);
        }
    }
    return parts;
}

} // namespace

Targets::Targets(const QWidget* within)
{
    QWidget* const first = QApplication::activePopupWidget() ? QApplication::activePopupWidget()
                                                             : QApplication::activeModalWidget();
    std::vector<QWidget*> reachable;
    if (first) {
        collect(first, reachable);
    } else {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (isForHands(window))
                collect(window, reachable);
        }
    }
    for (QWidget* widget : reachable) {
        if (!within || widget == within || within->isAncestorOf(widget))
            m_widgets.push_back(widget);
    }
}

Target Targets::any(StepRandom& random) const
{
    // Without it most places would be labels and frames of the window.
    std::vector<QWidget*> inputs;
    for (QWidget* widget : m_widgets) {
        if (widget->focusPolicy() != Qt::NoFocus || qobject_cast<QMenu*>(widget)
            || qobject_cast<QAbstractScrollArea*>(widget->parentWidget()))
            inputs.push_back(widget);
    }
    return pick(inputs.empty() || random.oneIn(8) ? m_widgets : inputs, random);
}

Target Targets::pick(const std::vector<QWidget*>& widgets, StepRandom& random)
{
    const int chosen = random.choose(widgets, path);
    return chosen < 0 ? Target() : in(widgets[std::size_t(chosen)], random);
}

QString Targets::path(const QWidget* widget)
{
    QString name = widget->objectName();
    if (name.isEmpty())
        name = QString::fromLatin1(widget->metaObject()->className());
    const QWidget* const parent = widget->parentWidget();
    if (!parent)
        return name;
    int twins = 0;
    for (const QObject* child : parent->children()) {
        if (child == widget)
            break;
        if (child->isWidgetType() && child->objectName() == widget->objectName()
            && child->metaObject() == widget->metaObject())
            ++twins;
    }
    if (twins > 0)
        name += u'#' + QString::number(twins);
    return path(parent) + u'/' + name;
}

Target Targets::in(QWidget* widget, StepRandom& random)
{
    const QRect seen = widget->visibleRegion().boundingRect();
    std::vector<QRect> parts;
    for (const QRect& part : partsOf(widget)) {
        if (seen.contains(part.center()))
            parts.push_back(part & seen);
    }
    QRect area = seen;
    if (!parts.empty())
        area = parts[std::size_t(random.below(int(parts.size())))];
    const QPoint place = parts.empty() || random.oneIn(3)
        ? area.topLeft() + QPoint(random.below(area.width()), random.below(area.height()))
        : area.center();
    return { widget, place, u"%1 at %2,%3"_s.arg(path(widget)).arg(place.x()).arg(place.y()) };
}
