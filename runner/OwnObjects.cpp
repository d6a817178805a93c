// SPDX-License-Identifier: BSD-3-Clause
#include "OwnObjects.h"

#include <QApplication>
#include <QWidget>
#include <QWindow>

#include <utility>

namespace {

/// The widget that a window was made for; null for a window without one.
const QWidget* widgetOf(const QWindow* window)
{
    // Asking for the identity of a window that has none yet would make one.
    return window->handle() ? QWidget::find(window->winId()) : nullptr;
}

} // namespace

void OwnObjects::take(const QWidget* mainWindow, const QWidgetList& before)
{
    QWidgetList own = QApplication::topLevelWidgets();
    own.removeIf(
        [&](const QWidget* widget) { return before.contains(widget) && widget != mainWindow; });
    for (const QWidget* const widget : std::as_const(own)) {
        m_tops.insert(widget);
        connect(widget, &QObject::destroyed, this, &OwnObjects::forget, Qt::UniqueConnection);
    }
}

/// Another object may come to live there.
void OwnObjects::forget(QObject* object) { m_tops.remove(object); }

bool OwnObjects::contains(const QObject* object) const
{
    if (object->isWindowType()) {
        const QWidget* const widget = widgetOf(static_cast<const QWindow*>(object));
        object = widget ? widget : object;
    }
    while (object && !m_tops.contains(object))
        object = object->parent();
    return object != nullptr;
}
