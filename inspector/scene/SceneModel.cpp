// SPDX-License-Identifier: BSD-3-Clause
#include "SceneModel.h"

#include "KnGroup.h"
#include "ListDiff.h"
#include "NodeFinder.h"
#include "NodeMimeData.h"
#include "SceneBranch.h"
#include "SceneRoots.h"
#include "SceneText.h"

#include <QFont>

#include <utility>

namespace {

/// Of a row that has children.
bool hasFixedChildren(const SceneItem& item)
{
    return static_cast<const KnGroup*>(item.node.get())->hasFixedChildren();
}

} // namespace

SceneModel::SceneModel(QObject* parent)
    : SceneModel(nullptr, parent)
{
}

SceneModel::SceneModel(NodeFilter* filter, QObject* parent)
    : QAbstractItemModel(parent)
    , m_filter(filter)
    , m_names(nodesRenamed, this)
{
    makeTop();
}

SceneModel::~SceneModel() = default;

void SceneModel::makeTop()
{
    m_top = std::make_unique<SceneItem>(nullptr, nullptr, 0);
    m_top->branch = std::make_unique<SceneBranch>(*this, *m_top, nullptr);
    m_top->opened = true;
}

void SceneModel::startAnew()
{
    beginResetModel();
    // Destroyed at the end, since what a node does when it dies should find sound rows.
    const std::unique_ptr<SceneItem> former = std::move(m_top);
    makeTop();
    endResetModel();
}

void SceneModel::setRoots(std::vector<KnNodePtr> roots)
{
    std::swap(m_roots, roots); // the former ones live until their rows have gone
    m_names.setAttached(!m_roots.empty());
    m_top->branch->rootsReplaced(static_cast<int>(roots.size()));
    follow(*m_top->branch);
}

KnFieldContainer* SceneModel::node(const QModelIndex& index) const
{
    return index.isValid() && index.model() == this ? itemOf(index).node.get() : nullptr;
}

QModelIndex SceneModel::indexOf(const KnFieldContainer* node) const
{
    NodeFinder finder(node);
    SceneItem* const item = node ? find(*m_top, finder) : nullptr;
    return item ? indexOf(*item) : QModelIndex();
}

QModelIndex SceneModel::counterpart(const QModelIndex& foreign) const
{
    const auto* const model = qobject_cast<const SceneModel*>(foreign.model());
    SceneItem* const item = model ? counterpart(model->itemOf(foreign)) : nullptr;
    return item ? indexOf(*item) : QModelIndex();
}

SceneItem* SceneModel::counterpart(const SceneItem& foreign) const
{
    if (!foreign.parent)
        return m_top.get();
    SceneItem* const parent = counterpart(*foreign.parent);
    SceneBranch* const branch = parent ? branchOf(*parent) : nullptr;
    for (int row = 0; branch && row < branch->count(); ++row) {
        if (branch->node(row) == foreign.node.get())
            return &branch->item(row);
    }
    return nullptr;
}

bool SceneModel::isInGraph(const KnFieldContainer* node) const
{
    return findRoot(m_roots, node) != nullptr;
}

/// Makes no rows but those on the way.
SceneItem* SceneModel::find(SceneItem& item, NodeFinder& finder)
{
    if (item.node && item.node.get() == finder.wanted())
        return &item;
    if (!item.opened && !finder.isAtOrBelow(item.node.get()))
        return nullptr;
    SceneBranch* const branch = branchOf(item);
    for (int row = 0; branch && row < branch->count(); ++row) {
        SceneItem* const known = branch->knownItem(row);
        if (!known && !finder.isAtOrBelow(branch->node(row)))
            continue;
        if (SceneItem* const found = find(known ? *known : branch->item(row), finder))
            return found;
    }
    return nullptr;
}

QModelIndex SceneModel::index(int row, int column, const QModelIndex& parent) const
{
    if (row < 0 || column < 0 || column >= ColumnCount || row >= rowCount(parent))
        return QModelIndex();
    return createIndex(row, column, &branchOf(itemOf(parent))->item(row));
}

QModelIndex SceneModel::parent(const QModelIndex& index) const
{
    return index.isValid() ? indexOf(*itemOf(index).parent) : QModelIndex();
}

int SceneModel::rowCount(const QModelIndex& parent) const
{
    const SceneBranch* const branch
        = parent.column() <= NameColumn ? branchOf(itemOf(parent)) : nullptr;
    return branch ? branch->count() : 0;
}

int SceneModel::columnCount(const QModelIndex&) const { return ColumnCount; }

bool SceneModel::hasChildren(const QModelIndex& parent) const { return rowCount(parent) > 0; }

QVariant SceneModel::data(const QModelIndex& index, int role) const
{
    const KnFieldContainer* const shown = node(index);
    if (!shown)
        return QVariant();
    const auto text = [&] {
        return index.column() == NameColumn ? nodeLabel(*shown) : typeName(shown->getObjectType());
    };
    if (role == Qt::DisplayRole)
        return text();
    // To be edited it is the name itself, which may be empty.
    if (role == Qt::EditRole && index.column() == NameColumn)
        return toQString(shown->getName());
    if (role == Qt::ToolTipRole)
        return toolTipText(index.column() == NameColumn ? nodeNote(*shown) : text());
    // A node without a name stands under its type's.
    if (role == Qt::FontRole && index.column() == NameColumn && shown->getName().isEmpty()) {
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

// A view asks this for each row that it lays out.
Qt::ItemFlags SceneModel::flags(const QModelIndex& index) const
{
    Qt::ItemFlags flags = QAbstractItemModel::flags(index);
    const SceneItem& item = itemOf(index);
    if (!item.parent)
        return m_rootsFixed ? flags : flags | Qt::ItemIsDropEnabled;
    if (index.column() == NameColumn)
        flags |= Qt::ItemIsEditable;
    const bool isFixed = item.parent == m_top.get() ? m_rootsFixed : hasFixedChildren(*item.parent);
    if (!isFixed)
        flags |= Qt::ItemIsDragEnabled;
    if (!item.isGroup)
        return flags | Qt::ItemNeverHasChildren;
    return hasFixedChildren(item) ? flags : flags | Qt::ItemIsDropEnabled;
}

bool SceneModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    KnFieldContainer* const shown = node(index);
    if (!shown || role != Qt::EditRole || index.column() != NameColumn)
        return false;
    Q_EMIT renameRequested(shown, value.toString());
    return true;
}

QStringList SceneModel::mimeTypes() const { return { NodeMimeData::format() }; }

QMimeData* SceneModel::mimeData(const QModelIndexList& indexes) const
{
    auto data = std::make_unique<NodeMimeData>(indexes);
    return data->rows().isEmpty() ? nullptr : data.release(); // which the drag owns
}

bool SceneModel::canDropMimeData(
    const QMimeData* data, Qt::DropAction action, int, int, const QModelIndex& parent) const
{
    const QModelIndexList rows = NodeMimeData::rowsOf(data, this);
    if (action != Qt::MoveAction || rows.isEmpty()
        || !flags(parent).testFlag(Qt::ItemIsDropEnabled))
        return false;
    // Whether a shared node makes a circle is looked at when it is dropped.
    for (QModelIndex above = parent.siblingAtColumn(NameColumn); above.isValid();
         above = above.parent()) {
        for (const QModelIndex& row : rows) {
            if (node(row) == node(above))
                return false;
        }
    }
    return true;
}

bool SceneModel::dropMimeData(
    const QMimeData* data, Qt::DropAction action, int row, int column, const QModelIndex& parent)
{
    if (!canDropMimeData(data, action, row, column, parent))
        return false;
    Q_EMIT moveRequested(NodeMimeData::rowsOf(data, this), parent.siblingAtColumn(NameColumn), row);
    return true;
}

/// Null if nothing can stand below.
SceneBranch* SceneModel::branchOf(SceneItem& item)
{
    if (!item.opened) {
        item.opened = true;
        if (item.isGroup)
            item.branch = std::make_unique<SceneBranch>(
                item.parent->branch->model(), item, static_cast<KnGroup*>(item.node.get()));
    }
    return item.branch.get();
}

SceneItem& SceneModel::itemOf(const QModelIndex& index) const
{
    return index.isValid() ? *static_cast<SceneItem*>(index.internalPointer()) : *m_top;
}

QModelIndex SceneModel::indexOf(SceneItem& item) const
{
    return item.parent ? createIndex(item.parent->branch->rowOf(item), NameColumn, &item)
                       : QModelIndex();
}

/// Brings the rows in line with the group.
void SceneModel::follow(SceneBranch& branch)
{
    const SceneBranch::Change change = branch.findChange();
    if (change.removed == 0 && change.inserted == 0) {
        branch.finish();
        return;
    }
    std::vector<const void*> before;
    for (int i = 0; i < change.removed; ++i) {
        const SceneItem* const known = branch.knownItem(change.first + i);
        before.push_back(known ? known->node.get() : nullptr);
    }
    const std::vector<KnFieldContainer*> nodes = branch.groupNodes(change.first, change.inserted);
    const ListDiff diff(before, { nodes.begin(), nodes.end() });

    Q_EMIT structureAboutToChange();
    for (const ListDiff::Run& run : diff.removals())
        announceRemoval(branch, change.first + run.first, run.count);
    for (const ListDiff::Move& move : diff.moves())
        announceMove(branch, change.first + move.from, change.first + move.to);
    if (!diff.arrangement().empty())
        announceArrangement(branch, change.first, diff.arrangement());
    for (const ListDiff::Run& run : diff.insertions())
        announceInsertion(branch, change.first + run.first, nodes, run.first, run.count);
    branch.finish();
    Q_EMIT structureChanged();
}

void SceneModel::followAll() { followBelow(*m_top); }

void SceneModel::followBelow(SceneItem& item)
{
    if (!item.branch)
        return;
    follow(*item.branch);
    for (int row = 0; row < item.branch->count(); ++row) {
        if (SceneItem* const known = item.branch->knownItem(row))
            followBelow(*known);
    }
}

void SceneModel::nodesRenamed(void* data, KnSensor*)
{
    auto* const model = static_cast<SceneModel*>(data);
    const KnNameSensor::Nodes nodes = model->m_names.takeNodes();
    model->announceNames(*model->m_top, nodes);
    model->namesChanged();
}

void SceneModel::announceNames(SceneItem& item, const KnNameSensor::Nodes& nodes)
{
    if (item.node && nodes.contains(item.node.get())) {
        const QModelIndex index = indexOf(item);
        Q_EMIT dataChanged(index, index);
    }
    for (int row = 0; item.branch && row < item.branch->count(); ++row) {
        if (SceneItem* const known = item.branch->knownItem(row))
            announceNames(*known, nodes);
    }
}

void SceneModel::announceRemoval(SceneBranch& branch, int row, int count)
{
    beginRemoveRows(indexOf(branch.place()), row, row + count - 1);
    // Destroyed at the end, since what a node does when it dies should find sound rows.
    const SceneBranch::Items gone = branch.remove(row, count);
    endRemoveRows();
}

void SceneModel::announceMove(SceneBranch& branch, int from, int to)
{
    const QModelIndex parent = indexOf(branch.place());
    beginMoveRows(parent, from, from, parent, to > from ? to + 1 : to);
    branch.move(from, to);
    endMoveRows();
}

void SceneModel::announceArrangement(SceneBranch& branch, int first, const std::vector<int>& order)
{
    const QList<QPersistentModelIndex> parents { indexOf(branch.place()) };
    Q_EMIT layoutAboutToBeChanged(parents);
    branch.arrange(first, order);
    const QModelIndexList before = persistentIndexList();
    for (const QModelIndex& index : before) {
        SceneItem& item = itemOf(index);
        if (item.parent == &branch.place())
            changePersistentIndex(index, createIndex(branch.rowOf(item), index.column(), &item));
    }
    Q_EMIT layoutChanged(parents);
}

void SceneModel::announceInsertion(
    SceneBranch& branch, int row, const std::vector<KnFieldContainer*>& nodes, int first, int count)
{
    beginInsertRows(indexOf(branch.place()), row, row + count - 1);
    branch.insert(row, nodes, first, count);
    endInsertRows();
}
