// SPDX-License-Identifier: BSD-3-Clause
#include "SceneActions.h"

#include "ContextMenu.h"
#include "CrvServices.h"
#include "FileDialogs.h"
#include "KnGroup.h"
#include "NodeChooser.h"
#include "PaneTree.h"
#include "ScenePanel.h"
#include "TreeExpansion.h"

#include <QAction>
#include <QMenu>

#include <algorithm>

SceneActions::SceneActions(ScenePanel* panel, PaneTree* tree, SceneEdits::Roots roots)
    : QObject(panel)
    , m_panel(panel)
    , m_tree(tree)
    , m_edits(roots)
{
    buildActions();
    m_tree->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_tree, &QWidget::customContextMenuRequested, this, &SceneActions::showMenu);
    for (SceneModel* const model : m_panel->models()) {
        connect(model, &SceneModel::renameRequested, this,
            [this](KnFieldContainer* node, const QString& name) { m_edits.rename(node, name); });
        connect(model, &SceneModel::moveRequested, this, &SceneActions::moveRows);
    }
}

void SceneActions::buildActions()
{
    m_add = addAction(tr("&Add Node..."), QStringLiteral("addNodeAction"), { Qt::Key_Insert });
    m_duplicate = addAction(tr("&Duplicate Node"), QStringLiteral("duplicateNodeAction"),
        { QKeySequence(Qt::CTRL | Qt::Key_D) });
    m_rename = addAction(tr("Rena&me Node"), QStringLiteral("renameNodeAction"), { Qt::Key_F2 });
    m_delete
        = addAction(tr("De&lete Node"), QStringLiteral("deleteNodeAction"), { Qt::Key_Delete });
    m_moveUp = addAction(
        tr("Move &Up"), QStringLiteral("moveNodeUpAction"), { QKeySequence(Qt::ALT | Qt::Key_Up) });
    m_moveDown = addAction(tr("Move D&own"), QStringLiteral("moveNodeDownAction"),
        { QKeySequence(Qt::ALT | Qt::Key_Down) });
    m_expand
        = addAction(tr("&Expand Below"), QStringLiteral("expandBelowAction"), { Qt::Key_Asterisk });
    m_collapse = addAction(
        tr("&Collapse Below"), QStringLiteral("collapseBelowAction"), { Qt::Key_Slash });
    connect(m_add, &QAction::triggered, this, &SceneActions::askForType);
    connect(m_duplicate, &QAction::triggered, this, [this] { m_edits.duplicate(places()); });
    connect(m_rename, &QAction::triggered, this, &SceneActions::renameCurrent);
    connect(m_delete, &QAction::triggered, this, [this] { m_edits.remove(places()); });
    connect(m_moveUp, &QAction::triggered, this, [this] { m_edits.shift(places(), -1); });
    connect(m_moveDown, &QAction::triggered, this, [this] { m_edits.shift(places(), 1); });
    connect(m_expand, &QAction::triggered, this, &SceneActions::expandBelow);
    connect(m_collapse, &QAction::triggered, this, &SceneActions::collapseBelow);
}

QAction* SceneActions::addAction(
    const QString& text, const QString& name, const QList<QKeySequence>& keys)
{
    auto* const action = new QAction(text, this);
    action->setObjectName(name);
    action->setShortcuts(keys);
    action->setShortcutContext(Qt::WidgetShortcut);
    action->setShortcutVisibleInContextMenu(true);
    m_tree->addAction(action);
    return action;
}

void SceneActions::fillEditMenu(QMenu* menu)
{
    menu->addActions({ m_add, m_duplicate, m_rename, m_delete });
    menu->addSeparator();
    menu->addActions({ m_moveUp, m_moveDown });
    connect(menu, &QMenu::aboutToShow, this, &SceneActions::updateActions);
    // The keys look for themselves what they can do.
    connect(menu, &QMenu::aboutToHide, this, [this] {
        for (QAction* const action :
            { m_add, m_duplicate, m_rename, m_delete, m_moveUp, m_moveDown, m_expand, m_collapse })
            action->setEnabled(true);
    });
}

void SceneActions::fillViewMenu(QMenu* menu) { menu->addActions({ m_expand, m_collapse }); }

void SceneActions::showMenu(const QPoint& position)
{
    QMenu* const menu = makeContextMenu(m_tree, QStringLiteral("sceneMenu"));
    fillEditMenu(menu);
    menu->addSeparator();
    fillViewMenu(menu);
    Q_EMIT m_panel->menuRequested(menu);
    menu->popup(m_tree->viewport()->mapToGlobal(position));
}

void SceneActions::updateActions()
{
    const SceneEdits::Places selected = places();
    const bool mayChange = m_edits.mayChange(selected);
    m_add->setEnabled(m_edits.mayChange(gapForNew().list()));
    m_duplicate->setEnabled(mayChange);
    m_delete->setEnabled(mayChange);
    m_moveUp->setEnabled(m_edits.canShift(selected, -1));
    m_moveDown->setEnabled(m_edits.canShift(selected, 1));
    const QModelIndex current = m_tree->currentIndex();
    m_rename->setEnabled(current.isValid());
    const bool isGroup = m_tree->model()->hasChildren(current.siblingAtColumn(0));
    m_expand->setEnabled(isGroup);
    m_collapse->setEnabled(isGroup);
}

SceneEdits::Places SceneActions::places() const
{
    QModelIndexList rows = m_tree->selectionModel()->selectedRows();
    const QSet<QModelIndex> selected(rows.begin(), rows.end());
    rows.removeIf([&selected](const QModelIndex& row) {
        for (QModelIndex above = row.parent(); above.isValid(); above = above.parent()) {
            if (selected.contains(above))
                return true;
        }
        return false;
    });
    std::sort(rows.begin(), rows.end(), [this](const QModelIndex& a, const QModelIndex& b) {
        return a.parent() == b.parent() ? a.row() < b.row()
                                        : m_tree->visualRect(a).top() < m_tree->visualRect(b).top();
    });
    SceneEdits::Places places;
    for (const QModelIndex& row : std::as_const(rows)) {
        const std::optional<NodePlace> place = m_panel->placeOf(row);
        const auto same = [&place](const NodePlace& each) {
            return each.list == place->list && each.index == place->index;
        };
        if (place && std::none_of(places.begin(), places.end(), same))
            places.push_back(*place);
    }
    return places;
}

/// At the end of the selected group, behind a selected node of another kind, or else at the end of
/// the first root.
ListGap SceneActions::gapForNew() const
{
    const std::optional<NodePlace> place = m_panel->placeOf(m_tree->currentIndex());
    KnFieldContainer* top = place ? place->node.get() : ChildList(nullptr).at(0);
    if (place && !dynamic_cast<const KnGroup*>(top))
        return ListGap(place->list, place->index + 1);
    const ChildList list(dynamic_cast<KnGroup*>(top));
    return ListGap(list, list.count());
}

// The selection may be another one by the time of the answer, but the question was about this one.
void SceneActions::askForType()
{
    const ListGap gap = gapForNew();
    if (!m_edits.mayChange(gap.list()))
        return;
    auto* const chooser = new NodeChooser(m_panel->window()); // deletes itself
    connect(chooser, &NodeChooser::typeChosen, this,
        [this, gap](const KnType& type) { m_edits.add(type, gap); });
    chooser->open();
}

void SceneActions::renameCurrent()
{
    const QModelIndex current = m_tree->currentIndex().siblingAtColumn(SceneModel::NameColumn);
    if (!current.isValid())
        return;
    m_tree->setFocus(Qt::ShortcutFocusReason);
    m_tree->edit(current);
}

void SceneActions::expandBelow()
{
    const QModelIndex current = m_tree->currentIndex().siblingAtColumn(SceneModel::NameColumn);
    m_tree->expand(current);
    expandSome(*m_tree, current);
}

void SceneActions::collapseBelow()
{
    collapseAll(*m_tree, m_tree->currentIndex().siblingAtColumn(SceneModel::NameColumn));
}

void SceneActions::moveRows(const QModelIndexList& rows, const QModelIndex& parent, int row)
{
    SceneEdits::Places moved;
    for (const QModelIndex& each : rows) {
        if (const std::optional<NodePlace> place = m_panel->placeOf(each))
            moved.push_back(*place);
    }
    const ChildList list(m_panel->nodeAt(parent));
    // Behind a filter the row that it was dropped in front of says where that is.
    const auto next = row < 0
        ? std::optional<NodePlace>()
        : m_panel->placeOf(parent.model() ? parent.model()->index(row, 0, parent)
                                          : m_tree->model()->index(row, 0));
    m_edits.move(moved, list, next ? next->index : list.count());
}
