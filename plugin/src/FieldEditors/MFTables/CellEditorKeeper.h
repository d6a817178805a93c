// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QAbstractItemDelegate>
#include <QPersistentModelIndex>
#include <QPointer>

class WfMFieldTable;
class WfMFieldWidget;
class WfSlider;

/// Looks after the one cell editor that a table may have open, from its opening to its end. A
/// slider is made of several widgets, so that the view can't tell by itself when a person leaves
/// it; and no editor may outlive its row, its table on the screen or the field it was opened for.
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
    /// Writes what the open editor holds and closes it; does nothing when none is open.
    void commit() { end(QAbstractItemDelegate::NoHint); }
    /// Closes the open editor without a write.
    void drop();
    /// The table has this many rows from now on: an editor in a later row goes.
    void limitRows(int count);
    /// The field has changed. An editor that a person isn't busy with shows the new value. When the
    /// count has changed and the cell holds another value than before, rows have moved below the
    /// editor: what it holds belongs to another row, and it goes.
    void fieldChanged(bool countChanged);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QString cellText() const;
    bool filterKey(const QWidget* part, const QKeyEvent& event);
    void focusLeft(WfSlider* slider);
    void end(QAbstractItemDelegate::EndEditHint hint);

    WfMFieldWidget* m_widget; // not owned
    WfMFieldTable* m_table; // the parent
    QPointer<QWidget> m_editor; // child of the table's viewport
    QPersistentModelIndex m_index; // of the editor's cell
    QString m_text; // of the cell when it was last seen
};
