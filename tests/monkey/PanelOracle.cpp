// SPDX-License-Identifier: BSD-3-Clause
#include "PanelOracle.h"

#include "CrvServices.h"
#include "FieldListModel.h"
#include "KnGroup.h"
#include "SceneFilterModel.h"
#include "SceneText.h"

#include <QAbstractProxyModel>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace {

/// The rows that can be seen, from top to bottom.
QModelIndexList seenRows(const QTreeView& view)
{
    QModelIndexList rows;
    for (QModelIndex row = view.indexAt(QPoint(0, 0)); row.isValid(); row = view.indexBelow(row)) {
        if (view.visualRect(row).top() > view.viewport()->height())
            break;
        rows += row;
    }
    return rows;
}

/// The node that the scene has there; null if none.
KnFieldContainer* nodeOf(const SceneModel& model, const QModelIndex& row)
{
    if (!row.parent().isValid()) {
        const auto& roots = CrvServices::getInstance()->getRoots();
        return row.row() < int(roots.size()) ? roots[std::size_t(row.row())].get() : nullptr;
    }
    const auto* const group = dynamic_cast<const KnGroup*>(model.node(row.parent()));
    return group && row.row() < group->getNumChildren() ? group->getChild(row.row()) : nullptr;
}

QString checkTree(const QTreeView& tree)
{
    const auto& model = dynamic_cast<const SceneModel&>(*tree.model());
    const bool isWhole = !qobject_cast<const SceneFilterModel*>(&model);
    for (const QModelIndex& row : seenRows(tree)) {
        const KnFieldContainer* const node = model.node(row);
        if (!node || (isWhole && node != nodeOf(model, row)))
            return u"a row of the tree stands for a node that isn't there"_s;
        const auto* const group = dynamic_cast<const KnGroup*>(node);
        if (isWhole && group && tree.isExpanded(row)
            && model.rowCount(row) != group->getNumChildren())
            return u"the tree has %1 rows below %2"_s.arg(model.rowCount(row))
                .arg(nodeLabel(*node));
        if (row.data().toString() != nodeLabel(*node))
            return u"the tree shows %1 for %2"_s.arg(row.data().toString(), nodeLabel(*node));
    }
    return {};
}

QString checkList(const QTreeView& list)
{
    const auto* const filter = qobject_cast<const QAbstractProxyModel*>(list.model());
    const auto* const model
        = qobject_cast<const FieldListModel*>(filter ? filter->sourceModel() : list.model());
    FieldListModel fresh;
    fresh.setNodes(model->nodes(), model->isComparing());
    if (fresh.rowCount() != model->rowCount())
        return u"the list has %1 fields of %2"_s.arg(model->rowCount()).arg(fresh.rowCount());
    for (const QModelIndex& shown : seenRows(list)) {
        const QModelIndex row = filter ? filter->mapToSource(shown) : shown;
        for (int column = 0; column < FieldListModel::ColumnCount; ++column) {
            const QModelIndex cell = row.siblingAtColumn(column);
            const QModelIndex wanted = fresh.index(row.row(), column);
            for (const int role : { int(Qt::DisplayRole), int(Qt::FontRole),
                     int(Qt::CheckStateRole), int(Qt::DecorationRole) }) {
                if (cell.data(role) != wanted.data(role))
                    return u"the list shows \"%1\" for \"%2\" in column %3 of %4 (role %5)"_s
                        .arg(cell.data().toString(), wanted.data().toString())
                        .arg(column)
                        .arg(row.siblingAtColumn(FieldListModel::NameColumn).data().toString())
                        .arg(role);
            }
        }
    }
    return {};
}

} // namespace

QString PanelOracle::check(QWidget* window)
{
    const QString error = checkTree(*window->findChild<QTreeView*>(u"sceneTree"_s));
    return error.isEmpty() ? checkList(*window->findChild<QTreeView*>(u"fieldList"_s)) : error;
}
