// SPDX-License-Identifier: BSD-3-Clause
#pragma once

class QAbstractItemView;
class QMenu;
class QString;

/// An empty menu, to be filled and shown with `popup` now. It is the view's child and deletes
/// itself when it is closed.
///
/// The view gets the focus first, so that what is being typed elsewhere is written before: a setter
/// may run an event loop, and a menu that is closed there while it is being shown is never left.
QMenu* makeContextMenu(QAbstractItemView* view, const QString& name);
