// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QObject>
#include <QSet>
#include <QWidgetList>

/// Tells the inspector's own widgets and windows from those of the program.
class OwnObjects : public QObject {
    Q_OBJECT
public:
    /// All that stands below `mainWindow` from now on, and the top-level widgets that have come
    /// since `before` was taken.
    void take(const QWidget* mainWindow, const QWidgetList& before);

    /// Whether an object stands below one of the own widgets, by way of its parents, or is the
    /// window of one.
    bool contains(const QObject* object) const;

private:
    void forget(QObject* object);

    QSet<const QObject*> m_tops; // alive
};
