// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QApplication>
#include <QEvent>
#include <QMetaObject>
#include <QWidget>

#include <unistd.h>

/// Ends the process as soon as its first window is on the screen.
class FirstFrame : public QObject {
public:
    /// To be called before the application object is made.
    static void endProcess()
    {
        qAddPreRoutine([] { qApp->installEventFilter(new FirstFrame); });
    }

    bool eventFilter(QObject* object, QEvent* event) override
    {
        // A window is painted while it handles its request, so it is done once this event is.
        if (event->type() == QEvent::Paint && !m_painted
            && static_cast<QWidget*>(object)->isWidgetType()) {
            m_painted = true;
            QMetaObject::invokeMethod(
                this, [] { _exit(0); }, Qt::QueuedConnection);
        }
        return false;
    }

private:
    FirstFrame()
        : QObject(qApp)
    {
    }

    bool m_painted = false;
};
