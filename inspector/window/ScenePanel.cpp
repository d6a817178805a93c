// SPDX-License-Identifier: BSD-3-Clause
#include "ScenePanel.h"

#include "CrvServices.h"
#include "PaneTree.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QVBoxLayout>

namespace {

// A view that opens everything lays everything out; with more rows than this nobody looks through
// them all anyway.
constexpr int maxExpandedRows = 2000;

// Opens the tree from above, level by level and row by row, until `budget` rows are open.
void expandSome(QTreeView& tree, const QModelIndex& parent, int& budget)
{
    const QAbstractItemModel& model = *tree.model();
    for (int row = 0; row < model.rowCount(parent) && budget > 0; ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        --budget;
        if (!model.hasChildren(index))
            continue;
        tree.expand(index);
        expandSome(tree, index, budget);
    }
}

} // namespace

ScenePanel::ScenePanel(QWidget* parent)
    : QWidget(parent)
    , m_filterEdit(new QLineEdit(this))
    , m_tree(new PaneTree(this))
{
    setObjectName(QStringLiteral("scenePanel"));
    m_filterEdit->setObjectName(QStringLiteral("sceneFilter"));
    m_filterEdit->setPlaceholderText(tr("Filter by name or type"));
    m_filterEdit->setClearButtonEnabled(true);

    m_filter.setSourceModel(&m_model);
    m_tree->setObjectName(QStringLiteral("sceneTree"));
    m_tree->setModel(&m_filter);
    m_tree->setUniformRowHeights(true);
    m_tree->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_tree->header()->setStretchLastSection(false);
    m_tree->header()->setSectionResizeMode(SceneModel::NameColumn, QHeaderView::Stretch);
    m_tree->header()->setSectionResizeMode(SceneModel::TypeColumn, QHeaderView::Interactive);
    m_tree->header()->resizeSection(SceneModel::TypeColumn, fontMetrics().averageCharWidth() * 21);

    setFocusProxy(m_tree);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_filterEdit);
    layout->addWidget(m_tree);

    connect(m_filterEdit, &QLineEdit::textChanged, this, &ScenePanel::setFilterText);
    connect(m_tree->selectionModel(), &QItemSelectionModel::currentChanged, this,
        &ScenePanel::currentChanged);
    CrvServices* const services = CrvServices::getInstance();
    connect(services, &CrvServices::rootsChanged, this, &ScenePanel::showRoots);
    connect(services, &CrvServices::selectedNodeChanged, this, &ScenePanel::showSelection);
    showRoots();
}

void ScenePanel::showRoots()
{
    const QScopedValueRollback following(m_following, true);
    m_filterEdit->clear();
    m_model.setRoots(CrvServices::getInstance()->getRoots());
    m_tree->expandToDepth(0);
}

void ScenePanel::focusFilter()
{
    m_filterEdit->setFocus(Qt::ShortcutFocusReason);
    m_filterEdit->selectAll();
}

// A view whose current row is filtered away moves on to another one, which is no person's choice.
void ScenePanel::setFilterText(const QString& text)
{
    {
        const QScopedValueRollback following(m_following, true);
        m_filter.setFilterText(text);
        if (m_filter.isFiltering()) {
            int budget = maxExpandedRows;
            expandSome(*m_tree, QModelIndex(), budget);
        }
    }
    showSelection();
}

void ScenePanel::currentChanged(const QModelIndex& current)
{
    if (!m_following)
        CrvServices::getInstance()->selectNode(m_model.node(m_filter.mapToSource(current)));
}

void ScenePanel::showSelection()
{
    const QScopedValueRollback following(m_following, true);
    KnFieldContainer* const node = CrvServices::getInstance()->getSelectedNode();
    QModelIndex index = m_tree->currentIndex();
    // A node may stand in several places: the one that the person chose is kept.
    if (!node || m_model.node(m_filter.mapToSource(index)) != node)
        index = m_filter.mapFromSource(m_model.indexOf(node));
    if (!index.isValid()) {
        m_tree->selectionModel()->clear();
        return;
    }
    m_tree->selectionModel()->setCurrentIndex(
        index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    m_tree->scrollTo(index);
}
