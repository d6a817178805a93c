// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "ValueDelegate.h"

#include <QPointer>

class FieldLineEdit;

/// Paints the values of the field list and edits them in place: an enumeration with a combo box,
/// anything else in a line. A line with a refused text stays open. What was typed is written when
/// the line is left; Esc drops it.
class FieldEditDelegate : public ValueDelegate {
    Q_OBJECT
public:
    using ValueDelegate::ValueDelegate;

    /// Ends an edit before the rows are replaced: writes what was typed. A text that is refused is
    /// dropped, and this is the reason.
    QString finish();
    /// The line whose text was refused; null if there is none.
    FieldLineEdit* refusedLine() const;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
        const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(
        QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    void destroyEditor(QWidget* editor, const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
        const QModelIndex& index) const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// False for a text that is refused.
    bool write(QWidget* editor);

    mutable QPointer<QWidget> m_editor; // the open one, a line or a combo box
};
