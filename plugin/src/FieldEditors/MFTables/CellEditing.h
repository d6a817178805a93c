// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "TrackedRow.h"

#include <QAbstractItemDelegate>
#include <QPersistentModelIndex>
#include <QPointer>

class QTableWidget;
class WfMFieldWidget;

/// Owns the edit of a cell from its opening to its end; a table has one such edit at a time. A
/// slider is made of several widgets, so the view can't tell by itself when a person leaves it; and
/// no editor may outlive its row, the display of its table, or the field that it was opened for.
///
/// The road of one edit:
/// 1. Opening. The view has the delegate make an editor and fill it with the cell's text. The table
///    then calls `begin`.
/// 2. Editing. The field may change from outside, so the table calls `follow` at each refresh, and
///    this class before each input. A slider writes its cell at each change of its value, which the
///    table reports by `cellWritten`.
/// 3. The person's end: Return, Tab, or a move of the focus to another widget of the window. Qt's
///    delegate sees the keys of a plain line, this class the rest. A menu or another window in
///    front ends nothing, since the focus comes back from there. Escape ends the edit without a
///    commit. Other ends: an operation on rows, and a table that leaves the screen, as at a new
///    selection, `close` the edit; the loss of the row or the field makes it `drop`.
/// 4. Commit. The delegate's commitData reaches the table, which asks `mayCommit`. The delegate's
///    setModelData calls `takeOut` and then hands an accepted text to the owner.
/// 5. Closing, with or without a commit. The delegate's closeEditor reaches the table, which calls
///    `letGo`. The view deletes the editor once control is back in the event loop.
///
/// The table and its delegate know this class. It knows neither: it sees a QTableWidget, and speaks
/// to the view through the signals of whatever delegate that has.
class CellEditing : public QObject {
    Q_OBJECT
public:
    /// `widget` gives the cells' texts and isn't owned. The table is the parent.
    CellEditing(WfMFieldWidget* widget, QTableWidget* table);

    void begin(QWidget* editor, const QModelIndex& index);
    /// Whether the view may commit `editor`: not if it has been taken out already, nor if its row
    /// may have moved.
    bool mayCommit(const QWidget* editor);
    /// Removes an editor that is being committed from the table, which gets the focus back from it.
    void takeOut(QWidget* editor, const QModelIndex& index);
    /// The view is closing `editor`.
    void letGo(const QWidget* editor);

    /// The editor that is open; null if none.
    QWidget* openEditor() const;
    /// Closes the open editor, if any. What was typed is written; an untouched editor is dropped,
    /// even where a person's own end would write it.
    void close();
    /// Closes the open editor, if any, without a write.
    void drop();
    /// The table is about to have this many rows: an editor in a later one is dropped.
    void limitRows(int count);
    /// Brings the open editor in line with the field. An editor that nobody is busy with shows the
    /// new value. Typed text stays, as long as the row that it is meant for certainly is where it
    /// was; otherwise the editor is dropped. False if no editor is open afterwards.
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
    void focusMoved(QWidget* old, QWidget* now);
    void end(QAbstractItemDelegate::EndEditHint hint);

    WfMFieldWidget* m_widget; // not owned
    QTableWidget* m_table; // the parent
    QPointer<QWidget> m_editor; // child of the table's viewport
    QPersistentModelIndex m_index; // of the editor's cell
    QString m_text; // of the cell when it was last looked at
    TrackedRow m_row; // of the editor's cell, since that time
    QMetaObject::Connection m_focusChanges; // while an editor is open
};
