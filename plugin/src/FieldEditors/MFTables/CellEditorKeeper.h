// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "SeenRows.h"

#include <QAbstractItemDelegate>
#include <QPersistentModelIndex>
#include <QPointer>

class WfMFieldTable;
class WfMFieldWidget;
class WfSlider;

/// Looks after the one cell editor that a table may have open, from its opening to its end. A
/// slider is made of several widgets, so that the view can't tell by itself when a person leaves
/// it; and no editor may outlive its row, its table on the screen or the field it was opened for.
///
/// A person leaves an editor when the focus goes to another widget of its window. A menu or another
/// window that comes to the front ends no edit: the focus comes back from there.
class CellEditorKeeper : public QObject {
    Q_OBJECT
public:
    /// `widget` answers for the cells and isn't owned. The table is the parent.
    CellEditorKeeper(WfMFieldWidget* widget, WfMFieldTable* table);

    /// Called by the delegate for every editor that it makes.
    void editorOpened(QWidget* editor, const QModelIndex& index);
    /// Takes an editor that is being committed out of the table, which gets the focus back from it.
    void takeOut(QWidget* editor, const QModelIndex& index);

    /// The editor that is open; null if none.
    QWidget* openEditor() const;
    /// Closes the open editor, for a reason that isn't the person's wish to end the edit: what was
    /// typed is written, and an editor that nobody touched just goes. Does nothing when none is
    /// open.
    void close();
    /// Closes the open editor without a write.
    void drop();
    /// The view closes `editor` by itself.
    void letGo(const QWidget* editor);
    /// The table has this many rows from now on: an editor in a later row goes.
    void limitRows(int count);
    /// Brings the open editor in line with the field, which may have changed from outside; before a
    /// write too, since the refresh comes later than the change. An editor that nobody is busy with
    /// shows the new value, and what is being typed stays, as long as it is meant for the row that
    /// stands there now. Where rows may have moved below the editor it goes. False when none is
    /// open, or none any more.
    bool follow();
    /// The open editor has written its cell itself.
    void cellWritten();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void takeFocusFrom(const QWidget* editor);
    QString cellText() const;
    void look();
    bool filterKey(const QWidget* part, const QKeyEvent& event);
    void endAfterReturn(const QWidget* editor);
    void focusMoved(const QWidget* now);
    void end(QAbstractItemDelegate::EndEditHint hint);

    WfMFieldWidget* m_widget; // not owned
    WfMFieldTable* m_table; // the parent
    QPointer<QWidget> m_editor; // child of the table's viewport
    QPersistentModelIndex m_index; // of the editor's cell
    QString m_text; // of the cell when it was last seen
    SeenRows m_rows; // of the field, at that time
    QMetaObject::Connection m_focusChanges; // while an editor is open
};
