// SPDX-License-Identifier: BSD-3-Clause
#include "ProgramRoots.h"

#include "CrvObjects.h"
#include "LooseObjects.h"
#include "OwnObjects.h"

#include <QApplication>
#include <QWidget>
#include <QWindow>

#include <algorithm>
#include <tuple>

namespace {

/// Windows before menus and the like, and then by name, since Qt keeps them in no order.
bool comesBefore(const QObject* a, const QObject* b)
{
    const auto place = [](const QObject* object) {
        const auto* const widget = qobject_cast<const QWidget*>(object);
        const bool isPopup
            = widget && (widget->windowType() == Qt::Popup || widget->windowType() == Qt::ToolTip);
        return std::make_tuple(
            isPopup, QLatin1String(object->metaObject()->className()), object->objectName());
    };
    return place(a) < place(b);
}

} // namespace

QObjectList programRoots(const OwnObjects& own)
{
    QObjectList roots { QCoreApplication::instance() };
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget* const widget : widgets) {
        if (!widget->parent() && !own.contains(widget))
            roots += widget;
    }
    const QWindowList windows = QGuiApplication::topLevelWindows();
    for (QWindow* const window : windows) {
        // The window of a widget is a detail of it.
        if (!window->parent() && !window->inherits("QWidgetWindow"))
            roots += window;
    }
    std::stable_sort(roots.begin() + 1, roots.end(), comesBefore);
    return roots;
}

std::vector<KnNodePtr> rootNodes(const QObjectList& roots, LooseObjects* loose)
{
    std::vector<KnNodePtr> nodes;
    for (QObject* const root : roots)
        nodes.emplace_back(crvObjectNode(root));
    if (!loose->isEmpty())
        nodes.emplace_back(loose);
    return nodes;
}
