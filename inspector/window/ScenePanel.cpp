// SPDX-License-Identifier: BSD-3-Clause
#include "ScenePanel.h"

#include "CrvServices.h"
#include "FilterKeys.h"
#include "MatchDelegate.h"
#include "NodeChoice.h"
#include "NodeNavigation.h"
#include "NodePath.h"
#include "PaneTree.h"
#include "SceneActions.h"
#include "TreeExpansion.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QUndoStack>
#include <QVBoxLayout>

#include <algorithm>
#include <memory>
#include <unordered_set>
#include <utility>

ScenePanel::ScenePanel(SceneEdits::Roots roots, QWidget* parent)
    : QWidget(parent)
    , m_filterEdit(new QLineEdit(this))
    , m_filterNote(new QLabel(this))
    , m_path(new NodePath(this))
    , m_tree(new PaneTree(this))
    , m_expansion(new TreeExpansion(m_tree))
{
    setObjectName(QStringLiteral("scenePanel"));
    m_filterEdit->setObjectName(QStringLiteral("sceneFilter"));
    m_filterEdit->setPlaceholderText(tr("Filter by name or type"));
    m_filterEdit->setClearButtonEnabled(true);
    m_filterEdit->setToolTip(
        tr("<p>Several words must all fit:</p>"
           "<table><tr><td>lamp</td><td>name or type</td></tr>"
           "<tr><td>\"desk lamp\"</td><td>with a blank</td></tr>"
           "<tr><td>name:lamp</td><td>name alone</td></tr>"
           "<tr><td>type:Light</td><td>type alone</td></tr>"
           "<tr><td>class:Light</td><td>type, or what it derives from</td></tr>"
           "<tr><td>field:color</td><td>has such a field</td></tr>"
           "<tr><td>transparency&gt;0</td><td>has such a value; also "
           "&lt;, &lt;=, &gt;=, =, !=</td></tr></table>"));
    m_filterNote->setObjectName(QStringLiteral("sceneFilterNote"));
    m_filterNote->hide();

    m_tree->setObjectName(QStringLiteral("sceneTree"));
    setTreeModel(&m_model);
    m_tree->setEmptyText(emptyText());
    m_tree->setUniformRowHeights(true);
    m_tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_tree->setEditTriggers(QAbstractItemView::NoEditTriggers); // but those of the actions
    m_tree->setDragDropMode(QAbstractItemView::DragDrop);
    m_tree->setDefaultDropAction(Qt::MoveAction);
    m_tree->header()->setStretchLastSection(false);
    m_tree->header()->setSectionResizeMode(SceneModel::NameColumn, QHeaderView::Stretch);
    m_tree->header()->setSectionResizeMode(SceneModel::TypeColumn, QHeaderView::Interactive);
    m_tree->header()->resizeSection(SceneModel::TypeColumn, fontMetrics().averageCharWidth() * 21);

    m_tree->setItemDelegate(new MatchDelegate(&m_filter, m_tree));
    new FilterKeys(m_filterEdit, m_tree, &m_filter);
    m_actions = new SceneActions(this, m_tree, roots);
    for (SceneModel* const model : models())
        model->setRootsFixed(roots == SceneEdits::Roots::Fixed);

    m_navigation = new NodeNavigation(this, m_path);

    setFocusProxy(m_tree);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* const line = new QHBoxLayout;
    line->addWidget(m_filterEdit);
    line->addWidget(m_filterNote);
    layout->addLayout(line);
    layout->addWidget(m_tree);
    layout->addWidget(m_path);

    connect(m_filterEdit, &QLineEdit::textChanged, this, &ScenePanel::setFilterText);
    for (const SceneModel* model : { &m_model, static_cast<SceneModel*>(&m_filter) }) {
        connect(
            model, &SceneModel::structureAboutToChange, this, &ScenePanel::structureAboutToChange);
        connect(model, &SceneModel::structureChanged, this, &ScenePanel::structureChanged);
    }
    connect(&m_model, &SceneModel::dataChanged, m_navigation, &NodeNavigation::showPath);
    connect(&m_filter, &SceneFilterModel::filtered, this, &ScenePanel::showFiltered);
    connect(&m_filter, &QAbstractItemModel::rowsInserted, this, &ScenePanel::showNewMatches);
    connect(&m_filter, &QAbstractItemModel::rowsRemoved, this, &ScenePanel::showFilterNote);
    CrvServices* const services = CrvServices::getInstance();
    connect(services, &CrvServices::rootsChanged, this, &ScenePanel::showRoots);
    connect(services, &CrvServices::selectedNodeChanged, this, &ScenePanel::showSelection);
    connect(
        services->getUndoStack(), &QUndoStack::indexChanged, this, &ScenePanel::showEditInPause);
    showRoots();
}

void ScenePanel::showRoots()
{
    std::unordered_set<const KnFieldContainer*> former;
    for (int row = 0; row < m_model.rowCount(); ++row)
        former.insert(m_model.node(m_model.index(row, SceneModel::NameColumn)));
    const std::vector<KnNodePtr>& roots = CrvServices::getInstance()->getRoots();
    // Another scene: what was looked for in the last one is of no use here.
    if (std::none_of(roots.begin(), roots.end(),
            [&former](const KnNodePtr& root) { return former.contains(root.get()); }))
        m_filterEdit->clear();
    m_model.setRoots(roots);
    m_filter.setRoots(roots);
    for (int row = 0; row < m_model.rowCount(); ++row) {
        const QModelIndex index = m_model.index(row, SceneModel::NameColumn);
        if (!former.contains(m_model.node(index)))
            m_tree->expand(toTree(index));
    }
}

QString ScenePanel::emptyText() { return tr("The scene, once the program shows one"); }

// While the sensors wait, a person's own edit is seen all the same.
void ScenePanel::showEditInPause()
{
    if (CrvServices::getInstance()->isPaused())
        treeModel().followAll();
}

KnFieldContainer* ScenePanel::nodeAt(const QModelIndex& index) { return treeModel().node(index); }

std::optional<NodePlace> ScenePanel::placeOf(const QModelIndex& index)
{
    KnFieldContainer* const node = nodeAt(index);
    if (!node)
        return std::nullopt;
    const QModelIndex bare = m_filter.isFiltering() ? m_model.counterpart(index) : index;
    const ChildList list(nodeAt(index.parent()));
    const int place = list.find(node, std::max(bare.row(), 0));
    if (place < 0)
        return std::nullopt;
    return NodePlace { KnNodePtr(node), list, place };
}

void ScenePanel::focusFilter()
{
    m_filterEdit->setFocus(Qt::ShortcutFocusReason);
    m_filterEdit->selectAll();
}

void ScenePanel::setFilterText(const QString& text)
{
    m_filter.setFilterText(text);
    m_navigation->setFilterText(text);
    showFilterNote();
}

// A view whose current row is filtered away moves on to another one, which is no person's choice.
void ScenePanel::showFiltered()
{
    {
        const QScopedValueRollback following(m_following, true);
        const bool wasFiltering = m_tree->model() == &m_filter;
        m_tree->setEmptyText(
            m_filter.isFiltering() ? tr("No node matches the filter") : emptyText());
        if (m_filter.isFiltering()) {
            if (!wasFiltering) {
                m_expansion->save();
                setTreeModel(&m_filter);
            }
            expandSome(*m_tree, QModelIndex());
        } else if (wasFiltering) {
            setTreeModel(&m_model);
            m_expansion->restore();
        }
    }
    showSelection();
    showFilterNote();
}

void ScenePanel::showNewMatches(const QModelIndex& parent, int first, int last)
{
    if (m_tree->model() == &m_filter)
        expandSome(*m_tree, parent, first, last);
    showFilterNote();
}

// Beside the line, so that nothing else moves while somebody types.
void ScenePanel::showFilterNote()
{
    const QString error = m_filter.errorText();
    const bool isEmpty = m_filter.isFiltering() && m_filter.rowCount() == 0;
    m_filterNote->setText(!error.isEmpty() ? error : isEmpty ? tr("no match") : QString());
    m_filterNote->setVisible(!m_filterNote->text().isEmpty());
}

void ScenePanel::setTreeModel(SceneModel* model)
{
    const std::unique_ptr<QItemSelectionModel> former(m_tree->selectionModel());
    m_tree->setModel(model);
    // The header makes one of its own each time, before it gets the tree's.
    const QHeaderView& header = *m_tree->header();
    for (auto* selection :
        header.findChildren<QItemSelectionModel*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (selection != header.selectionModel())
            delete selection;
    }
    m_expansion->follow();
    connect(m_tree->selectionModel(), &QItemSelectionModel::currentChanged, this,
        &ScenePanel::currentChanged);
    connect(m_tree->selectionModel(), &QItemSelectionModel::selectionChanged, this,
        &ScenePanel::selectionChanged);
}

SceneModel& ScenePanel::treeModel() { return m_filter.isFiltering() ? m_filter : m_model; }

QModelIndex ScenePanel::toTree(const QModelIndex& index)
{
    return m_filter.isFiltering() ? m_filter.counterpart(index) : index;
}

void ScenePanel::currentChanged(const QModelIndex& current)
{
    if (m_following)
        return;
    m_place = m_filter.isFiltering() ? m_model.counterpart(current) : current;
    {
        const QScopedValueRollback choosing(m_choosing, true);
        NodeChoice::choose(m_model.node(m_place));
    }
    // The same node in another place isn't another selection.
    m_navigation->showPath();
}

void ScenePanel::goTo(const NodeRows& rows)
{
    m_model.followAll();
    QModelIndex index;
    for (const int row : rows)
        index = m_model.index(row, SceneModel::NameColumn, index);
    if (!index.isValid())
        return;
    m_place = index;
    CrvServices* const services = CrvServices::getInstance();
    if (services->getSelectedNode() == m_model.node(m_place))
        showSelection();
    else
        services->selectNode(m_model.node(m_place));
}

void ScenePanel::showSelection()
{
    m_placeLost = false;
    findPlace();
    const QModelIndex index = toTree(m_place);
    // Choosing several rows, the person goes from one to the next.
    if (m_choosing && index == m_tree->currentIndex())
        return;
    showPlace();
    if (index.isValid())
        m_tree->scrollTo(index);
}

// A node may stand in several places: the one that the person chose is kept.
void ScenePanel::findPlace()
{
    KnFieldContainer* const node = CrvServices::getInstance()->getSelectedNode();
    if (node && m_model.node(m_place) == node)
        return;
    m_place = m_model.indexOf(node);
    if (m_place.isValid() || !node || m_following)
        return;
    // A node that came a moment ago may not be announced yet.
    m_model.followAll();
    m_filter.followAll();
    m_place = m_model.indexOf(node);
}

void ScenePanel::showPlace()
{
    const QScopedValueRollback following(m_following, true);
    const QModelIndex index = toTree(m_place);
    if (index.isValid()) {
        m_tree->selectionModel()->setCurrentIndex(
            index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    } else {
        m_tree->selectionModel()->clear();
    }
    m_navigation->showPath();
}

// When the current row goes, a view moves on to a neighbour and scrolls there, which is no person's
// choice either.
void ScenePanel::structureAboutToChange()
{
    m_following = true;
    m_placed = m_place.isValid();
    m_tree->holdPlace();
    m_tree->setAutoScroll(false);
}

void ScenePanel::structureChanged()
{
    m_placeLost = m_placeLost || (m_placed && !m_place.isValid());
    if (treeModel().node(m_tree->currentIndex()) != m_model.node(m_place))
        showPlace();
    m_tree->setAutoScroll(true);
    m_following = false;
    // Later, when all groups have told: a node may have gone from one of them to another.
    if (m_placeLost)
        QMetaObject::invokeMethod(this, &ScenePanel::lookForSelection, Qt::QueuedConnection);
}

void ScenePanel::lookForSelection()
{
    if (!m_placeLost)
        return;
    CrvServices* const services = CrvServices::getInstance();
    if (!m_model.isInGraph(services->getSelectedNode())) {
        services->selectNode(nullptr);
        return;
    }
    // The person may be looking at something else by now, so nothing is scrolled.
    m_tree->setAutoScroll(false);
    findPlace();
    showPlace();
    m_tree->setAutoScroll(true);
    m_placeLost = !m_place.isValid(); // it may have to be announced yet
}

// Later, when the current row has followed as well.
void ScenePanel::selectionChanged()
{
    if (!std::exchange(m_announces, true))
        QMetaObject::invokeMethod(this, &ScenePanel::announceNodes, Qt::QueuedConnection);
}

void ScenePanel::announceNodes()
{
    m_announces = false;
    QItemSelectionModel& selection = *m_tree->selectionModel();
    const QModelIndexList rows = selection.selectedRows();
    // The current row may just have been taken out of the selection.
    if (!rows.isEmpty()
        && !selection.isRowSelected(m_tree->currentIndex().row(), m_tree->currentIndex().parent()))
        selection.setCurrentIndex(rows.constLast(), QItemSelectionModel::NoUpdate);
    std::vector<KnFieldContainer*> nodes;
    if (KnFieldContainer* const selected = CrvServices::getInstance()->getSelectedNode())
        nodes.push_back(selected);
    // A node may stand in several places.
    std::unordered_set<const KnFieldContainer*> known(nodes.begin(), nodes.end());
    for (const QModelIndex& row : rows) {
        KnFieldContainer* const node = treeModel().node(row);
        if (node && known.insert(node).second)
            nodes.push_back(node);
    }
    Q_EMIT nodesSelected(nodes);
}
