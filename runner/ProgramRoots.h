// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QObjectList>

class OwnObjects;

/// What of a program is shown at the top of the tree: the application object, and the widgets and
/// windows that have no parent and aren't the inspector's own.
QObjectList programRoots(const OwnObjects& own);
