// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvFieldEditors.h"

#include <QPixmap>

class AccessButtonPrivate;
class KnMField;
class QGridLayout;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QSpacerItem;
class WfMFieldTable;

/// Base of all editors of multi-value fields: a panel of title, buttons, quick access to rows,
/// count of elements and the row table. It holds no copy of the field's values. A subclass decides
/// how many columns the table has, and reads and writes single cells, which the table asks for when
/// it paints or edits them.
class WfMFieldWidget : public CrvFieldEditors {
    Q_OBJECT
public:
    /// Which table an editor has.
    enum TableKind : int { PlainTable = 0, ColorTable = 1 };

    explicit WfMFieldWidget(const char* name);
    /// `tableKind` is a TableKind. Any other number makes a plain table.
    WfMFieldWidget(int tableKind, const char* name);
    ~WfMFieldWidget() override;

    /// A subclass sets the label, calls this one and then shapes the table.
    void load() override;
    void attachField(KnField* field) override;
    /// Takes the field's row count and repaints the visible cells, whatever the number of rows.
    void updateFromField() override;
    void setFieldUpdateEnabled(bool enabled) override;
    void swapFieldValues(int row1, int row2) override;
    /// Called with what a person has committed. Ignores a row that the field no longer has.
    void setFieldValue(int row, int col, QString text) override;
    void setFieldColor(int row, const void* color) override;
    void applyChanges() override;

    /// What one cell shows; empty for a row or a column that the field doesn't have.
    virtual QString getCellText(int row, int col);
    /// A value of Qt::Alignment.
    virtual int getCellAlignment();
    /// Whether the editor edits this field. It runs on each attachment and may shape the table for
    /// the field.
    virtual bool acceptsField(KnField* field);

    /// The edited field; null while none is shown, and once it has gone away.
    KnMField* shownField() const;

    /// Sets the title, once: a label that has text keeps it. A subclass calls it before `load` of
    /// this class.
    void setLabel(const QString& text);
    void updateElementCount();

protected Q_SLOTS:
    virtual void languageChange();
    void ignoreButtonStateChanged();
    virtual void setDefaultFieldValue();

protected:
    /// Whether a field is attached that has this row now. The table's row count may differ from the
    /// field's until the next refresh.
    bool hasRow(int row) const;
    /// The same, and a person may write it.
    bool mayWriteRow(int row) const;
    /// Gives the table its columns, numbered and resizable, and no rows.
    void shapeColumns(int count);
    /// The same with a column for each header.
    void shapeColumns(const QStringList& headers);

    AccessButtonPrivate* m_accessBox = nullptr; // quick access to a row, from 1
    QPushButton* m_upButton = nullptr;
    QPushButton* m_downButton = nullptr;
    QPushButton* m_defaultButton = nullptr;
    QPushButton* m_ignoreButton = nullptr;
    QPushButton* m_deleteButton = nullptr;
    QPushButton* m_addButton = nullptr;
    QLabel* m_label = nullptr;
    QLabel* m_labelNumElement = nullptr;
    WfMFieldTable* m_table; // child of the frame
    KnMField* m_field = nullptr; // not owned; keeps the last field after a deactivation
    QGridLayout* m_globalLayout = nullptr;
    QHBoxLayout* m_buttonsLayout = nullptr;
    QHBoxLayout* m_manageButtonsLayout = nullptr; // add and delete
    QHBoxLayout* m_movementButtonLayout = nullptr; // up and down
    QHBoxLayout* m_fieldButtonLayout = nullptr; // default and ignore
    QSpacerItem* m_manageAccessSpacer = nullptr; // owned by m_buttonsLayout, like the next one
    QSpacerItem* m_accessMoveSpacer = nullptr;
    QPixmap m_deletePixmap;
    QPixmap m_addPixmap;
    QPixmap m_upPixmap;
    QPixmap m_downPixmap;
    QPixmap m_defaultPixmap;
    QPixmap m_ignorePixmap;
    bool m_updateEnabled = true;

private:
    friend class WfMFieldTable; // which drives the access box and edits the field's rows

    void buildButtonRow();
    QHBoxLayout* addButtonPair(const char* name, QPushButton* first, QPushButton* second);
    void makeConnections();
};
