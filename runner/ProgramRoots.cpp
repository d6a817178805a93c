// SPDX-License-Identifier: BSD-3-Clause
#include "ProgramRoots.h"

#include <QApplication>
#include <QWidget>
#include <QWindow>

bool belongsTo(const QObject* object, const OwnWidgets& own)
{
    while (object && !own.contains(object))
        object = object->parent();
    return object != nullptr;
}

QObjectList programRoots(const OwnWidgets& own)
{
    QObjectList roots { QCoreApplication::instance() };
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget* const widget : widgets) {
        if (!widget->parent() && !belongsTo(widget, own))
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
