// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CellDrawing.h"
#include "EditorKind.h"

#include <QItemDelegate>

class CellEditing;
class QLineEdit;
class WfMFieldWidget;

/// Paints and edits the cells of a table that holds no values: it asks the owning editor for the
/// text of a cell that is painted or opened, and hands it the text that is committed. It makes cell
/// editors and fills them; CellEditing decides when they open and close.
class WfMFieldTableItemDelegate : public QItemDelegate {
public:
    /// `widget` gives the cells' texts and takes the committed ones; it isn't owned. The table is
    /// the parent, and `editing` its own.
    WfMFieldTableItemDelegate(WfMFieldWidget* widget, CellEditing& editing, QObject* table);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
        const QModelIndex& index) const override;
    /// A slider for most numbers of a one-column table, a line edit for everything else.
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
        const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    /// Takes the editor out of the table. The text of a line edit goes to the owner if a person has
    /// changed it and its validator accepts it.
    void setModelData(
        QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
        const QModelIndex& index) const override;
    /// Gives a line edit the validator of the kind.
    virtual void setEditorValidator(QLineEdit* editor) const;

    /// One of EditorKind.
    void setEditorKind(int kind) { m_kind = kind; }
    void setIntRange(int min, int max);
    void setRealRange(double min, double max);
    /// Whether the sliders can't leave their range.
    void setBounded(bool bounded) { m_bounded = bounded; }

protected:
    /// How the text of a committed line is written.
    struct LineWrite {
        int component; // of the value in the row
        int role; // under which the model stores the text
        bool alsoUnchanged; // also where the person left it as it was
    };

    /// Ignores that the focus leaves the editor: CellEditing judges what that means.
    bool eventFilter(QObject* editor, QEvent* event) override;
    /// The whole of setModelData.
    void commit(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index,
        const LineWrite& write) const;

    WfMFieldWidget* m_widget; // not owned

private:
    QWidget* makeSlider(QWidget* parent, int row, int column) const;
    QWidget* makeLineEdit(QWidget* parent) const;

    CellEditing& m_editing; // the table's
    int m_kind = PlainTextKind; // of EditorKind
    int m_intMax = 10;
    int m_intMin = 0;
    double m_realMax = 10.0;
    double m_realMin = 0.0;
    bool m_bounded = false;
    mutable CellDrawing m_drawing;
};
