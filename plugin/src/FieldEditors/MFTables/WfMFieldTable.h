// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QList>
#include <QPersistentModelIndex>
#include <QTableWidget>

class CellEditing;
class KnMField;
class WfMFieldTableItemDelegate;
class WfMFieldWidget;

/// Shows the values of an array, one row a value, one column a component. A field may hold a
/// million values, so the table keeps none of them: it has a row count, and its delegate asks the
/// owning editor for the cells that are on the screen. Rows are added, deleted and moved by
/// undoable commands.
class WfMFieldTable : public QTableWidget {
    Q_OBJECT
public:
    /// `widget` is the editor that the table belongs to; it isn't owned. `name` is the object name,
    /// by default the class name.
    WfMFieldTable(WfMFieldWidget* widget, QWidget* parent, const char* name);
    ~WfMFieldTable() override;

    // How the delegate edits a cell; see there.
    void setEditorKind(int kind);
    void setIntRange(int min, int max);
    void setRealRange(double min, double max);
    void setBounded(bool bounded);

    using QTableWidget::edit; // the slot, which the override below hides
    /// Ends the edit of a cell, if any, without a write.
    void dropCellEdit();
    /// The editor in a cell has written it by itself.
    void cellWritten();
    using QTableWidget::update;
    /// Draws the cells anew, which hides what QWidget does: that draws the frame, the corner and
    /// the scroll bar, but not the cells.
    void update();
    /// The field that is shown, as WfMFieldWidget::shownField.
    KnMField* field() const;

public Q_SLOTS:
    /// Takes the field's value count; a negative one is ignored. This and a repaint are a whole
    /// refresh.
    void setNumRows(int row);
    void swapUpRow();
    void swapDownRow();
    /// Deletes the current row, or with Shift held the rows of the first selected range.
    virtual void deleteRow();
    /// Adds a row behind the current one.
    virtual void addRow();
    /// Scrolls to a row, counted from 1, and makes it current.
    void showTableRow(int value);
    virtual void swapRows(int row1, int row2);
    void editorDestroyed(QObject* editor) override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

    // The table's part of the edit of a cell; CellEditing says how it goes.
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    void commitData(QWidget* editor) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;

    CellEditing& cellEditing() const { return *m_cellEditing; }

    WfMFieldWidget* m_widget; // the owner, not owned
    WfMFieldTableItemDelegate* m_delegate; // child
    bool m_multiSelect = false; // true while Shift is held on the table

private:
    bool isKeyForRows() const;
    void endMultiSelect();
    bool prepareRowOperation();
    void moveRow(int row, int target);
    void setAccessLimits(int minimum, int maximum);
    void deleteRows(int firstRow, int count);
    void layOutRows();
    void dropItems();
    /// A cell may have got an item.
    void noteItem(const QModelIndex& cell);

    CellEditing* m_cellEditing; // child
    QList<QPersistentModelIndex> m_items; // the cells that have one: new rows, and what was edited
};
