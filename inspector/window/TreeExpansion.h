// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QList>
#include <QObject>
#include <QPersistentModelIndex>
#include <QSet>

#include <unordered_set>

class KnFieldContainer;
class QTreeView;

/// Opens what stands below an index, level by level and row by row, as long as that isn't more rows
/// than anybody would look through. A view that opens everything lays everything out.
void expandSome(QTreeView& tree, const QModelIndex& parent);
/// The same for some of the rows below `parent`, and what stands below them.
void expandSome(QTreeView& tree, const QModelIndex& parent, int first, int last);

/// Closes an index and all that is open below it.
void collapseAll(QTreeView& tree, const QModelIndex& index);

/// What is open in a tree of a scene. A view forgets it with the rows: when it gets another model,
/// and when a group goes from one place to another.
class TreeExpansion : public QObject {
    Q_OBJECT
public:
    /// The tree owns this object.
    explicit TreeExpansion(QTreeView* tree);

    /// Before the tree gets another model.
    void save();
    /// When it has got the former one back, which was there all the time.
    void restore();
    /// The tree has got a model: a SceneModel.
    void follow();

private:
    void rowsInserted(const QModelIndex& parent, int first, int last);
    void rowsAboutToBeRemoved(const QModelIndex& parent, int first, int last);
    void noteOpen(const QModelIndex& index);
    void open(const QModelIndex& index);
    void forgetLater();

    struct Rows {
        QPersistentModelIndex first;
        QPersistentModelIndex last;
    };

    QTreeView* m_tree;
    QSet<QPersistentModelIndex> m_open; // of the model that the tree has
    QSet<QPersistentModelIndex> m_saved;
    // From one turn of the event loop: a group that moves goes in one place and comes in another,
    // or the other way round.
    std::unordered_set<const KnFieldContainer*> m_goneOpen; // only compared with others
    QList<Rows> m_come;
    bool m_forgetting = false; // at the end of this turn
};
