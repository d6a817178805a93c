// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QObject>
#include <QPointer>

/// Of each class whose properties may all be written without harm to a program, the first object
/// that the program has, and the one in a form that designer shows.
QList<QPointer<QObject>> safeObjects();

/// Why a property may keep its value in spite of an edit; null if it may not.
const char* whyKept(QLatin1String property);
