// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "EditorKind.h"

#include <QFontMetrics>
#include <QItemDelegate>

class QLineEdit;
class WfMFieldTable;
class WfMFieldWidget;

/// Paints and edits the cells of a table that holds no values: each visible cell is asked of the
/// owning editor when it is painted or opened, and what is committed goes to the editor.
class WfMFieldTableItemDelegate : public QItemDelegate {
public:
    /// `widget` answers for the cells; it isn't owned. The table is the parent.
    WfMFieldTableItemDelegate(WfMFieldWidget* widget, WfMFieldTable* table);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
        const QModelIndex& index) const override;
    /// A slider for most numbers of a one-column table, a line edit for everything else.
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
        const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    /// Takes the editor out of the table, and hands the text of a line edit that a person has
    /// changed and that its validator accepts to the owner.
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
    /// The keeper of the editors judges when the focus has left one.
    bool eventFilter(QObject* editor, QEvent* event) override;
    WfMFieldTable* table() const { return m_table; }
    /// Whether a line edit's text may be written: it has no validator, or one that accepts it.
    static bool isAcceptable(const QLineEdit* editor);

    WfMFieldWidget* m_widget; // not owned

private:
    /// A text and what was shown of it last.
    struct CutText {
        QString text;
        int available = 0; // pixels
        QFontMetrics metrics { QFont() };
        QString shown;
    };

    QString shownText(const QString& text, int available, const QFontMetrics& metrics) const;
    QWidget* makeSlider(QWidget* parent, int row, int column) const;
    QWidget* makeLineEdit(QWidget* parent) const;

    WfMFieldTable* m_table; // the parent
    int m_kind = PlainTextKind;
    int m_intMax = 10;
    int m_intMin = 0;
    double m_realMax = 10.0;
    double m_realMin = 0.0;
    bool m_bounded = false;
    mutable CutText m_cut;
};
