// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnNameSensor.h"
#include "KnNodePtr.h"

#include <QAbstractItemModel>

#include <memory>
#include <vector>

class NodeFilter;
class NodeFinder;
class SceneBranch;
struct SceneItem;

/// The scene as a tree: one row per place of a node, the roots at the top. A node that has several
/// parents stands in several places. Rows are made, and groups are watched, where a view has asked
/// what stands there; the rest of the graph costs nothing. What comes, goes and moves in a group
/// arrives as rows that do, once the kernel's queue runs. Until then a row holds its node.
///
/// The model writes nothing itself: a name that is typed and nodes that are dropped are handed on.
class SceneModel : public QAbstractItemModel {
    Q_OBJECT
public:
    enum Column { NameColumn, TypeColumn, ColumnCount };

    explicit SceneModel(QObject* parent = nullptr);
    ~SceneModel() override;

    /// None is null. The model holds a reference on each. The rows of those that were roots before
    /// stay.
    void setRoots(std::vector<KnNodePtr> roots);

    /// Null for an index that isn't one of this model, or whose node went before anybody looked.
    KnFieldContainer* node(const QModelIndex& index) const;
    /// The first place of the node in the tree; invalid if it has none. Looks through the graph.
    QModelIndex indexOf(const KnFieldContainer* node) const;
    /// The place in this tree that stands below the same nodes as one in another tree; invalid if
    /// there is none.
    QModelIndex counterpart(const QModelIndex& foreign) const;
    /// Brings all rows in line with graph and filter, without waiting for the kernel's queue.
    void followAll();
    /// Whether the graph has the node at this moment, which may be ahead of the rows.
    bool isInGraph(const KnFieldContainer* node) const;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    bool hasChildren(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

    /// Roots that belong to somebody else can be neither dragged nor joined by others.
    void setRootsFixed(bool fixed) { m_rootsFixed = fixed; }
    Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    bool canDropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
        const QModelIndex& parent) const override;
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
        const QModelIndex& parent) override;

Q_SIGNALS:
    /// A person has typed another name for a node.
    void renameRequested(KnFieldContainer* node, const QString& name);
    /// A person has dropped rows in front of one below `parent`; -1 stands for behind the last.
    void moveRequested(const QModelIndexList& rows, const QModelIndex& parent, int row);
    // Around all that is announced of one group.
    void structureAboutToChange();
    void structureChanged();

protected:
    /// Shows only what the filter accepts; the filter outlives the last use of the model.
    SceneModel(NodeFilter* filter, QObject* parent);
    const std::vector<KnNodePtr>& roots() const { return m_roots; }
    /// Makes all rows anew, in one reset: another filter.
    void startAnew();
    /// Names that may stand in the tree have changed.
    virtual void namesChanged() { }

private:
    friend class SceneBranch;

    void makeTop();
    static void nodesRenamed(void* data, KnSensor* sensor);
    void announceNames(SceneItem& item, const KnNameSensor::Nodes& nodes);
    static SceneBranch* branchOf(SceneItem& item);
    static SceneItem* find(SceneItem& item, NodeFinder& finder);
    SceneItem* counterpart(const SceneItem& foreign) const;
    SceneItem& itemOf(const QModelIndex& index) const;
    QModelIndex indexOf(SceneItem& item) const;

    void follow(SceneBranch& branch);
    void followBelow(SceneItem& item);
    void announceRemoval(SceneBranch& branch, int row, int count);
    void announceMove(SceneBranch& branch, int from, int to);
    void announceArrangement(SceneBranch& branch, int first, const std::vector<int>& order);
    void announceInsertion(SceneBranch& branch, int row,
        const std::vector<KnFieldContainer*>& nodes, int first, int count);

    bool m_rootsFixed = false;
    NodeFilter* m_filter; // not owned; null lets everything through
    std::vector<KnNodePtr> m_roots;
    std::unique_ptr<SceneItem> m_top; // has the roots below it, and no node
    KnNameSensor m_names; // attached while there are roots
};
