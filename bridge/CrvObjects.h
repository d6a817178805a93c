// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnNodePtr.h"

class KnField;
class QObject;

/// A tree of objects as a scene graph, for a program that has none of the kernel's:
///
///     CrvInspector inspector(crvObjectNode(&window));
///     inspector.show();
///
/// The object is a node, its properties are the fields, and its children the children. Nodes and
/// fields are made when somebody looks at them, and live as long as somebody holds a reference. An
/// edit goes through the setter of the property. The object may die at any time; its node is then
/// gone from the tree, and writes to its fields are refused.
///
/// All functions are for the thread of the user interface.

/// The node of an object; the same one as long as anybody holds a reference on it. A fresh one has
/// a reference count of 0, so take one. Null for null.
KnFieldContainer* crvObjectNode(QObject* object);
/// The same, when all that stands above the object has looked at its children: whoever shows the
/// top of its tree then finds the node there.
KnNodePtr crvPlacedNode(QObject* object);
/// Keeps an object, and all that stands below it, out of the tree, for what a tool has made itself.
void crvHideObject(QObject* object);
/// The object behind a node; null if it is dead, or if the node is no object's.
QObject* crvNodeObject(const KnFieldContainer* node);
/// The node of the object that a property points to; null if it points to none, or if the field is
/// no such property's. As with crvObjectNode, take a reference.
KnFieldContainer* crvLinkedNode(const KnField* field);
