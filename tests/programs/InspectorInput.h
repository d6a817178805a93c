// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QKeySequence>
#include <QModelIndex>
#include <QPointer>
#include <QString>
#include <QTreeView>
#include <QWidget>

class KnField;

/// The inspector's window in a program, found by the names of its widgets, and a person's mouse and
/// keys in it.
class InspectorInput {
public:
    /// Whether the window is there and shows the program's objects.
    static bool isReady();

    /// What stands below the roots that it shows, and can be read by this thread. None is null.
    static QObjectList programObjects();

    /// Needs a window that is ready.
    InspectorInput();

    QTreeView* tree() const { return m_tree; }
    QTreeView* list() const { return m_list; }
    /// What the field editor's dock shows; null if there is no editor for the field.
    QWidget* editor() const;

    /// Whether a node is selected, of an object or not.
    bool hasNode() const;
    /// The object whose node is selected; null if there is none.
    QObject* object() const;
    KnField* field() const;

    /// The keys work on whichever window has the focus, so ours is brought to the front.
    void activate();
    /// Opens the branches above an object by their rows and clicks the last of them.
    bool clickObject(QObject* object);
    /// Clicks the row of a field of the selected node.
    bool clickField(const QString& name);
    /// By a key, as it reaches the window from the list.
    void undo();
    void redo();

private:
    QModelIndex rowOf(QObject* object) const;
    void press(QKeySequence::StandardKey keys);

    QPointer<QTreeView> m_tree;
    QPointer<QTreeView> m_list;
    QPointer<QWidget> m_window;
};

/// Runs what waits in the event loop, the kernel's sensors among it.
void settle();
