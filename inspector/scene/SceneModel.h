// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnNodePtr.h"

#include <QAbstractItemModel>

#include <memory>
#include <vector>

/// The scene as a tree: one row per place of a node, the roots at the top. Rows are made when a
/// view asks for them. A node that has several parents stands in several places. The kernel doesn't
/// tell when a graph changes its shape: rows that were made stay as they are, and keep their nodes
/// alive.
class SceneModel : public QAbstractItemModel {
    Q_OBJECT
public:
    enum Column { NameColumn, TypeColumn, ColumnCount };

    explicit SceneModel(QObject* parent = nullptr);
    ~SceneModel() override;

    /// None is null. The model holds a reference on each.
    void setRoots(const std::vector<KnNodePtr>& roots);

    /// Null for an index that isn't one of this model.
    KnFieldContainer* node(const QModelIndex& index) const;
    /// The first place of the node in the tree; invalid if it has none.
    QModelIndex indexOf(const KnFieldContainer* node) const;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    bool hasChildren(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Item;

    Item* itemOf(const QModelIndex& index) const;

    std::unique_ptr<Item> m_top; // has the roots as its children, and no node
};
