// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnNodePtr.h"

#include <QAbstractTableModel>
#include <QBasicTimer>
#include <QElapsedTimer>

#include <memory>
#include <vector>

class KnField;

/// The fields of one node, one row each, kept up to date by one sensor per field. The texts of the
/// values are made when a view asks for them, cut short, and kept until the field changes. A value
/// that has just changed is lit for a moment.
class FieldListModel : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { NameColumn, TypeColumn, ValueColumn, IgnoredColumn, ColumnCount };
    /// How brightly a value is lit: from 1, when it has just changed, down to 0.
    enum Role { LightRole = Qt::UserRole };

    explicit FieldListModel(QObject* parent = nullptr);
    ~FieldListModel() override;

    /// Null for an empty list. The model holds a reference on the node.
    void setNode(KnFieldContainer* node);
    KnFieldContainer* node() const { return m_node.get(); }

    /// Null for an index that isn't one of this model.
    KnField* field(const QModelIndex& index) const;
    /// -1 for a field of another node.
    int rowOf(const KnField* field) const;

    /// Holds the texts as they are, also of fields whose change hasn't been announced yet. What is
    /// announced all the same is shown: a person's edit. At the end everything is read again.
    void setHeld(bool held);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    struct Row;

    const QString& valueText(Row& row) const;
    QString text(Row& row, int column) const;
    QString meaning(const Row& row) const;
    QString toolTip(Row& row) const;
    double light(const Row& row) const;
    void fieldChanged(Row& row);
    bool readAgain(Row& row);
    void showChange(Row& row);
    void announce(const Row& row);

    KnNodePtr m_node; // keeps the fields of the rows alive
    std::vector<std::unique_ptr<Row>> m_rows;
    bool m_held = false;
    QElapsedTimer m_clock;
    QBasicTimer m_timer; // runs while a value is lit
};
