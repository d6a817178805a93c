// SPDX-License-Identifier: BSD-3-Clause
#include "TreeExpansion.h"

#include "SceneModel.h"

#include <QTreeView>

#include <utility>

namespace {

constexpr int maxExpandedRows = 2000;

void expandRows(QTreeView& tree, const QModelIndex& parent, int first, int last, int& budget)
{
    const QAbstractItemModel& model = *tree.model();
    for (int row = first; row <= last && budget > 0; ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        --budget;
        if (!model.hasChildren(index))
            continue;
        tree.expand(index);
        expandRows(tree, index, 0, model.rowCount(index) - 1, budget);
    }
}

KnFieldContainer* nodeAt(const QModelIndex& index)
{
    return static_cast<const SceneModel*>(index.model())->node(index);
}

} // namespace

void expandSome(QTreeView& tree, const QModelIndex& parent)
{
    expandSome(tree, parent, 0, tree.model()->rowCount(parent) - 1);
}

void expandSome(QTreeView& tree, const QModelIndex& parent, int first, int last)
{
    int budget = maxExpandedRows;
    expandRows(tree, parent, first, last, budget);
}

void collapseAll(QTreeView& tree, const QModelIndex& index)
{
    if (!tree.isExpanded(index))
        return;
    const QAbstractItemModel& model = *tree.model();
    for (int row = 0; row < model.rowCount(index); ++row)
        collapseAll(tree, model.index(row, 0, index));
    tree.collapse(index);
}

TreeExpansion::TreeExpansion(QTreeView* tree)
    : QObject(tree)
    , m_tree(tree)
{
    connect(tree, &QTreeView::expanded, this,
        [this](const QModelIndex& index) { m_open.insert(QPersistentModelIndex(index)); });
    connect(tree, &QTreeView::collapsed, this,
        [this](const QModelIndex& index) { m_open.remove(QPersistentModelIndex(index)); });
}

void TreeExpansion::save() { m_saved = std::exchange(m_open, {}); }

void TreeExpansion::restore()
{
    const QSet<QPersistentModelIndex> saved = std::exchange(m_saved, {});
    m_open.clear();
    for (const QPersistentModelIndex& index : saved)
        m_tree->expand(index);
}

void TreeExpansion::follow()
{
    m_goneOpen.clear();
    m_come.clear();
    const QAbstractItemModel* const model = m_tree->model();
    // A tree that had the model before is connected already.
    connect(model, &QAbstractItemModel::rowsInserted, this, &TreeExpansion::rowsInserted,
        Qt::UniqueConnection);
    connect(model, &QAbstractItemModel::rowsAboutToBeRemoved, this,
        &TreeExpansion::rowsAboutToBeRemoved, Qt::UniqueConnection);
}

void TreeExpansion::rowsInserted(const QModelIndex& parent, int first, int last)
{
    if (parent.model() && parent.model() != m_tree->model())
        return;
    const QAbstractItemModel& model = *m_tree->model();
    for (int row = first; row <= last && !m_goneOpen.empty(); ++row)
        open(model.index(row, 0, parent));
    m_come.append({ QPersistentModelIndex(model.index(first, 0, parent)),
        QPersistentModelIndex(model.index(last, 0, parent)) });
    forgetLater();
}

void TreeExpansion::rowsAboutToBeRemoved(const QModelIndex& parent, int first, int last)
{
    if (parent.model() && parent.model() != m_tree->model())
        return;
    const QAbstractItemModel& model = *m_tree->model();
    const std::size_t before = m_goneOpen.size();
    if (m_tree->isExpanded(parent) || !parent.isValid()) {
        for (int row = first; row <= last; ++row)
            noteOpen(model.index(row, 0, parent));
    }
    if (m_goneOpen.size() == before)
        return;
    forgetLater();
    const QList<Rows> come = m_come;
    for (const Rows& rows : come) {
        if (!rows.first.isValid() || !rows.last.isValid())
            continue;
        for (int row = rows.first.row(); row <= rows.last.row(); ++row)
            open(rows.first.sibling(row, 0));
    }
}

void TreeExpansion::noteOpen(const QModelIndex& index)
{
    if (!m_tree->isExpanded(index))
        return;
    m_goneOpen.insert(nodeAt(index));
    const QAbstractItemModel& model = *index.model();
    for (int row = 0; row < model.rowCount(index); ++row)
        noteOpen(model.index(row, 0, index));
}

void TreeExpansion::open(const QModelIndex& index)
{
    if (!m_goneOpen.contains(nodeAt(index)))
        return;
    m_tree->expand(index);
    const QAbstractItemModel& model = *index.model();
    for (int row = 0; row < model.rowCount(index); ++row)
        open(model.index(row, 0, index));
}

void TreeExpansion::forgetLater()
{
    if (std::exchange(m_forgetting, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_forgetting = false;
            m_goneOpen.clear();
            m_come.clear();
            m_open.removeIf([](const QPersistentModelIndex& index) { return !index.isValid(); });
        },
        Qt::QueuedConnection);
}
