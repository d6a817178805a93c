// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QList>
#include <QPointer>

class CrvEditor;
class KnTypedObject;
class QDockWidget;

/// The editors that extensions show at this moment, and the docks that they stand in.
namespace EditorPanes {

/// Null if the dock holds no editor, or one that edits nothing.
CrvEditor* editorIn(const QDockWidget* dock);
/// The dock of the editor that edits this object, seen or not; null if there is none.
QDockWidget* dockFor(const KnTypedObject* object);
/// Of all editors.
QList<QDockWidget*> docks();

} // namespace EditorPanes

/// Leaves editors closed that a person has closed, while the selection moves on to something else
/// that they can edit.
class ClosedEditors {
public:
    ClosedEditors();
    ~ClosedEditors();
    Q_DISABLE_COPY_MOVE(ClosedEditors)

private:
    QList<QPointer<QDockWidget>> m_closed;
};
