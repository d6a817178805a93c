// SPDX-License-Identifier: BSD-3-Clause
#include "FieldPanel.h"

#include "ContextMenu.h"
#include "CrvServices.h"
#include "ElidedLabel.h"
#include "FieldDrag.h"
#include "FieldFilter.h"
#include "FieldListActions.h"
#include "FieldListView.h"
#include "FieldStep.h"
#include "KnField.h"
#include "PauseAction.h"
#include "SceneText.h"
#include "WatchMenu.h"

#include <QAction>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

/// The name and the type, or how many nodes there are and their type if they have one in common.
QString nodesHeading(const std::vector<KnFieldContainer*>& nodes, bool compared)
{
    const KnFieldContainer& first = *nodes.front();
    if (compared)
        return FieldPanel::tr("%1 and %2").arg(nodeLabel(first), nodeLabel(*nodes.back()));
    const bool isOneType = std::all_of(nodes.begin(), nodes.end(),
        [&first](const auto* node) { return node->getObjectType() == first.getObjectType(); });
    if (!isOneType || (nodes.size() == 1 && first.getName().isEmpty()))
        return nodesLabel(nodes);
    return QStringLiteral("%1  %2  %3")
        .arg(nodesLabel(nodes), QChar(0x2013), typeName(first.getObjectType()));
}

} // namespace

FieldPanel::FieldPanel(QWidget* parent)
    : QWidget(parent)
    , m_pauseAction(new PauseAction(this))
    , m_compareAction(new QAction(tr("C&ompare"), this))
    , m_heading(new ElidedLabel(Qt::ElideRight, this))
    , m_list(new FieldListView(this))
    , m_filter(new FieldFilter(m_list, &m_model))
    , m_message(new QLabel(this))
{
    setObjectName(QStringLiteral("fieldPanel"));
    m_list->setObjectName(QStringLiteral("fieldList"));
    m_list->setModel(&m_model);
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setAlternatingRowColors(true);
    m_list->setAllColumnsShowFocus(true);
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setMouseTracking(true); // for the status tips
    QHeaderView& header = *m_list->header();
    const int character = fontMetrics().averageCharWidth();
    header.setStretchLastSection(false);
    header.setSectionResizeMode(QHeaderView::Interactive);
    header.setSectionResizeMode(FieldListModel::ValueColumn, QHeaderView::Stretch);
    header.resizeSection(FieldListModel::NameColumn, character * 20);
    header.resizeSection(FieldListModel::TypeColumn, character * 20);
    header.resizeSection(FieldListModel::IgnoredColumn, character * 11);
    header.setSectionResizeMode(FieldListModel::OtherColumn, QHeaderView::Stretch);
    header.moveSection(FieldListModel::OtherColumn, FieldListModel::IgnoredColumn);
    header.hideSection(FieldListModel::OtherColumn);

    m_list->setContextMenuPolicy(Qt::CustomContextMenu);
    m_actions = new FieldListActions(m_list, &m_model);
    connect(m_actions, &FieldListActions::told, this, &FieldPanel::tell);
    connect(&m_model, &FieldListModel::leftOut, this, &FieldPanel::tell);
    connect(m_list, &FieldListView::refused, this, &FieldPanel::tell);
    connect(m_list, &FieldListView::linkFollowed, m_actions, &FieldListActions::follow);
    connect(m_list, &QWidget::customContextMenuRequested, this, &FieldPanel::showMenu);
    new FieldDrag(m_list, [this](const QModelIndex& index) { return m_model.field(index); });

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(makeHeading());
    layout->addWidget(m_list);
    layout->addWidget(m_message);
    m_message->setObjectName(QStringLiteral("fieldMessage"));
    m_message->setTextFormat(Qt::PlainText);
    m_message->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_message->setWordWrap(true);
    m_message->setMargin(fontMetrics().averageCharWidth());
    // A message never makes the panel wider.
    m_message->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_message->hide();

    CrvServices* const services = CrvServices::getInstance();
    connect(services, &CrvServices::selectedNodeChanged, this, &FieldPanel::showNode);
    connect(services, &CrvServices::selectedFieldChanged, this, &FieldPanel::showField);
    connect(services, &CrvServices::pausedChanged, this, &FieldPanel::setPaused);
    connect(m_list->selectionModel(), &QItemSelectionModel::currentChanged, this,
        &FieldPanel::currentChanged);
    // Brings back an editor whose dock was closed.
    connect(m_list, &QTreeView::activated, services, &CrvServices::announceSelection);
    showNode(services->getSelectedNode());
    setPaused(services->isPaused());
}

QLayout* FieldPanel::makeHeading()
{
    m_heading->setObjectName(QStringLiteral("fieldHeading"));
    m_heading->setIndent(fontMetrics().averageCharWidth());
    // As high as the filter line beside it, so that tree and list start level.
    m_heading->setMinimumHeight(QLineEdit().sizeHint().height());

    auto* const line = new QHBoxLayout;
    line->addWidget(m_heading);
    const auto addButton = [this, line](const QString& name, QAction* action) {
        auto* const button = new QToolButton(this);
        button->setObjectName(name);
        button->setDefaultAction(action);
        button->setFocusPolicy(Qt::TabFocus);
        line->addWidget(button);
        return button;
    };
    m_compareAction->setObjectName(QStringLiteral("compareNodes"));
    m_compareAction->setToolTip(tr("Show the two selected nodes side by side"));
    m_compareAction->setCheckable(true);
    m_compareAction->setVisible(false);
    connect(m_compareAction, &QAction::toggled, this, &FieldPanel::compare);
    m_compareButton = addButton(QStringLiteral("compareButton"), m_compareAction);
    m_compareButton->hide();
    addButton(QStringLiteral("changedOnlyButton"), m_filter->action());
    addButton(QStringLiteral("pauseButton"), m_pauseAction);
    return line;
}

void FieldPanel::showNode(KnFieldContainer* node)
{
    if (m_model.node() != node)
        fill(node ? std::vector { node } : std::vector<KnFieldContainer*>());
    else
        showHeading();
}

void FieldPanel::showNodes(const std::vector<KnFieldContainer*>& nodes)
{
    if (!nodes.empty() && nodes.front() == m_model.node() && nodes != m_model.nodes())
        fill(nodes);
}

void FieldPanel::fill(const std::vector<KnFieldContainer*>& nodes)
{
    const QScopedValueRollback following(m_following, true);
    tell(m_list->finishEditing());
    const bool isPair = nodes.size() == 2;
    m_compareAction->setVisible(isPair);
    m_compareButton->setVisible(isPair);
    m_compareAction->setChecked(isPair && m_compareAction->isChecked());
    m_model.setNodes(nodes, m_compareAction->isChecked());
    m_list->header()->setSectionHidden(FieldListModel::OtherColumn, !m_model.isComparing());
    m_names.setAttached(!nodes.empty());
    m_tables.setAttached(!nodes.empty());
    showHeading();
    showField(CrvServices::getInstance()->getSelectedField());
}

void FieldPanel::compare()
{
    if (!m_following)
        fill(m_model.nodes());
}

void FieldPanel::tell(const QString& message)
{
    m_message->setText(message);
    m_message->setVisible(!message.isEmpty());
}

void FieldPanel::addNodeEntriesTo(QMenu* menu) { m_actions->addNodeEntriesTo(*menu); }

void FieldPanel::namesChanged(void* data, KnSensor*)
{
    auto* const panel = static_cast<FieldPanel*>(data);
    const KnNameSensor::Nodes renamed = panel->m_names.takeNodes();
    const std::vector<KnFieldContainer*> nodes = panel->m_model.nodes();
    if (std::any_of(nodes.begin(), nodes.end(),
            [&renamed](KnFieldContainer* node) { return renamed.contains(node); }))
        panel->showHeading();
}

void FieldPanel::tablesChanged(void* data, KnSensor*)
{
    auto* const panel = static_cast<FieldPanel*>(data);
    const KnFieldTableSensor::Nodes changed = panel->m_tables.takeNodes();
    const std::vector<KnFieldContainer*> nodes = panel->m_model.nodes();
    if (std::any_of(nodes.begin(), nodes.end(),
            [&changed](KnFieldContainer* node) { return changed.contains(node); }))
        panel->showOtherFields();
}

/// The list stays where it is, and so does what is being typed while fields only come. What has
/// taken the place of the selected field is selected.
void FieldPanel::showOtherFields()
{
    if (m_model.addRows())
        return;
    const int place = m_list->verticalScrollBar()->value();
    fill(m_model.nodes());
    m_list->verticalScrollBar()->setValue(place);
    CrvServices* const services = CrvServices::getInstance();
    const KnField* const selected = services->getSelectedField();
    KnFieldContainer* const node = selected ? selected->getContainer() : nullptr;
    if (!node)
        return;
    const KnFieldData* const table = node->getContainerFieldData();
    KnField* const current = table->getField(node, table->getIndex(node, selected));
    if (current && current != selected)
        services->selectField(current);
}

void FieldPanel::showHeading()
{
    const bool paused = CrvServices::getInstance()->isPaused();
    const std::vector<KnFieldContainer*> nodes = m_model.nodes();
    const QString text = nodes.empty() ? tr("Select a node in the scene")
                                       : nodesHeading(nodes, m_model.isComparing());
    m_heading->setEnabled(!nodes.empty() || paused);
    m_list->setEmptyText(nodes.empty() ? tr("The fields of the node that is selected in the scene")
            : nodes.size() == 1        ? tr("This node has no fields")
                                       : tr("These nodes share no fields"));
    QFont font = m_heading->font();
    font.setBold(paused);
    m_heading->setFont(font);
    m_heading->setWholeText(paused ? tr("Paused:  %1").arg(text) : text);
}

void FieldPanel::setPaused(bool paused)
{
    m_model.setHeld(paused);
    showHeading();
}

void FieldPanel::showField(KnField* field)
{
    const QScopedValueRollback following(m_following, true);
    const int row = field ? m_model.rowOf(field) : -1;
    if (row < 0) {
        m_list->selectionModel()->clear();
        return;
    }
    // Choosing several rows in the list, the person goes from one to the next.
    if (m_choosing && row == m_list->currentIndex().row())
        return;
    m_filter->show(row);
    const QModelIndex index = m_model.index(row, FieldListModel::NameColumn);
    m_list->selectionModel()->setCurrentIndex(
        index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    m_list->scrollTo(index);
}

void FieldPanel::currentChanged(const QModelIndex& current)
{
    if (m_following)
        return;
    const QScopedValueRollback choosing(m_choosing, true);
    CrvServices::getInstance()->selectField(m_model.field(current));
}

void FieldPanel::showMenu(const QPoint& position)
{
    QMenu* const menu = makeContextMenu(m_list, QStringLiteral("fieldMenu"));
    KnField* const field = m_model.field(m_list->indexAt(position));
    if (field) {
        addWatchEntries(*menu, *field, [this](KnField& watched, int component) {
            Q_EMIT watchRequested(&watched, component);
        });
        menu->addSeparator();
    }
    m_actions->addTo(*menu);
    menu->addAction(m_compareAction);
    menu->popup(m_list->viewport()->mapToGlobal(position));
}
