// SPDX-License-Identifier: BSD-3-Clause
#include "SceneModel.h"

#include "KnGroup.h"
#include "SceneText.h"

#include <QFont>

/// One place in the tree.
struct SceneModel::Item {
    Item(KnFieldContainer* itemNode, Item* itemParent, int itemRow)
        : node(itemNode)
        , parent(itemParent)
        , row(itemRow)
    {
    }

    // Rows that a view knows about stay, whatever becomes of the group.
    int childCount() const
    {
        if (!children.empty())
            return static_cast<int>(children.size());
        const auto* group = dynamic_cast<const KnGroup*>(node.get());
        return group ? group->getNumChildren() : 0;
    }

    const std::vector<std::unique_ptr<Item>>& childItems()
    {
        if (children.empty() && childCount() > 0) {
            const auto* group = static_cast<const KnGroup*>(node.get());
            const int count = childCount();
            children.reserve(static_cast<std::size_t>(count));
            for (int i = 0; i < count; ++i)
                children.push_back(std::make_unique<Item>(group->getChild(i), this, i));
        }
        return children;
    }

    /// Below this place or at it; null if the node isn't there.
    Item* find(const KnFieldContainer* wanted)
    {
        if (node && node.get() == wanted)
            return this;
        for (const auto& child : childItems()) {
            if (Item* found = child->find(wanted))
                return found;
        }
        return nullptr;
    }

    KnNodePtr node;
    Item* parent; // null for the top
    int row;
    std::vector<std::unique_ptr<Item>> children; // made by childItems()
};

SceneModel::SceneModel(QObject* parent)
    : QAbstractItemModel(parent)
    , m_top(std::make_unique<Item>(nullptr, nullptr, 0))
{
}

SceneModel::~SceneModel() = default;

void SceneModel::setRoots(const std::vector<KnNodePtr>& roots)
{
    beginResetModel();
    m_top->children.clear();
    for (const KnNodePtr& root : roots) {
        const int row = static_cast<int>(m_top->children.size());
        m_top->children.push_back(std::make_unique<Item>(root.get(), m_top.get(), row));
    }
    endResetModel();
}

KnFieldContainer* SceneModel::node(const QModelIndex& index) const
{
    return index.isValid() && index.model() == this ? itemOf(index)->node.get() : nullptr;
}

QModelIndex SceneModel::indexOf(const KnFieldContainer* node) const
{
    Item* const item = node ? m_top->find(node) : nullptr;
    return item ? createIndex(item->row, NameColumn, item) : QModelIndex();
}

QModelIndex SceneModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent))
        return QModelIndex();
    return createIndex(
        row, column, itemOf(parent)->childItems()[static_cast<std::size_t>(row)].get());
}

QModelIndex SceneModel::parent(const QModelIndex& index) const
{
    Item* const parentItem = index.isValid() ? itemOf(index)->parent : nullptr;
    return parentItem && parentItem->parent ? createIndex(parentItem->row, NameColumn, parentItem)
                                            : QModelIndex();
}

int SceneModel::rowCount(const QModelIndex& parent) const
{
    return parent.column() <= NameColumn ? itemOf(parent)->childCount() : 0;
}

int SceneModel::columnCount(const QModelIndex&) const { return ColumnCount; }

bool SceneModel::hasChildren(const QModelIndex& parent) const { return rowCount(parent) > 0; }

QVariant SceneModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const KnFieldContainer& shown = *itemOf(index)->node.get();
    const auto text = [&] {
        return index.column() == NameColumn ? nodeLabel(shown) : typeName(shown.getObjectType());
    };
    if (role == Qt::DisplayRole)
        return text();
    if (role == Qt::ToolTipRole)
        return toolTipText(text());
    // A node without a name stands under its type's.
    if (role == Qt::FontRole && index.column() == NameColumn && shown.getName().isEmpty()) {
        QFont font;
        font.setItalic(true);
        return font;
    }
    return QVariant();
}

QVariant SceneModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QVariant();
    return section == NameColumn ? tr("Node") : tr("Type");
}

SceneModel::Item* SceneModel::itemOf(const QModelIndex& index) const
{
    return index.isValid() ? static_cast<Item*>(index.internalPointer()) : m_top.get();
}
