// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QObjectList>
#include <QSet>

/// The inspector's own top-level widgets, alive or dead.
using OwnWidgets = QSet<const QObject*>;

/// What of a program is shown at the top of the tree: the application object, and the widgets and
/// windows that have no parent and aren't the inspector's own.
QObjectList programRoots(const OwnWidgets& own);

/// Whether an object is one of the inspector's own or stands below one, by way of its parents.
bool belongsTo(const QObject* object, const OwnWidgets& own);
