// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnNodePtr.h"

#include <QObjectList>

#include <vector>

class LooseObjects;
class OwnObjects;

/// What of a program is shown at the top of the tree: the application object, and the widgets and
/// windows that have no parent and aren't the inspector's own.
QObjectList programRoots(const OwnObjects& own);
/// Their nodes, and behind them that of the objects without a parent, if there are any.
std::vector<KnNodePtr> rootNodes(const QObjectList& roots, LooseObjects* loose);
