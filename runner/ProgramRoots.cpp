// SPDX-License-Identifier: BSD-3-Clause
#include "ProgramRoots.h"

#include "CrvObjects.h"
#include "LooseObjects.h"
#include "OwnObjects.h"

#include <QApplication>
#include <QWidget>
#include <QWindow>

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
