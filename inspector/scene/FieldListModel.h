// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnNodePtr.h"

#include <QAbstractTableModel>

#include <memory>
#include <vector>

class KnField;

/// The fields of one node, one row each, kept up to date by one sensor per field. The texts of the
/// values are made when a view asks for them, and cut short.
class FieldListModel : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { NameColumn, TypeColumn, ValueColumn, IgnoredColumn, ColumnCount };

    explicit FieldListModel(QObject* parent = nullptr);
    ~FieldListModel() override;

    /// Null for an empty list. The model holds a reference on the node.
    void setNode(KnFieldContainer* node);
    KnFieldContainer* node() const { return m_node.get(); }

    /// Null for an index that isn't one of this model.
    KnField* field(const QModelIndex& index) const;
    /// -1 for a field of another node.
    int rowOf(const KnField* field) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Row;

    QString text(const Row& row, int column) const;
    void refreshRow(const Row& row);

    KnNodePtr m_node; // keeps the fields of the rows alive
    std::vector<std::unique_ptr<Row>> m_rows;
};
