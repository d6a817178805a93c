// SPDX-License-Identifier: BSD-3-Clause
#include "FieldPanel.h"

#include "CrvServices.h"
#include "ElidedLabel.h"
#include "FieldDrag.h"
#include "FieldFilter.h"
#include "FieldListActions.h"
#include "FieldListView.h"
#include "KnField.h"
#include "PauseAction.h"
#include "SceneText.h"
#include "WatchMenu.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QScopedValueRollback>
#include <QToolButton>
#include <QVBoxLayout>

FieldPanel::FieldPanel(QWidget* parent)
    : QWidget(parent)
    , m_pauseAction(new PauseAction(this))
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
    };
    addButton(QStringLiteral("changedOnlyButton"), m_filter->action());
    addButton(QStringLiteral("pauseButton"), m_pauseAction);
    return line;
}

void FieldPanel::showNode(KnFieldContainer* node)
{
    const QScopedValueRollback following(m_following, true);
    if (m_model.node() != node) {
        m_list->commitTyping();
        tell(QString());
        m_model.setNode(node);
    }
    showHeading();
}

void FieldPanel::tell(const QString& message)
{
    m_message->setText(message);
    m_message->setVisible(!message.isEmpty());
}

void FieldPanel::showHeading()
{
    const KnFieldContainer* const node = m_model.node();
    const bool paused = CrvServices::getInstance()->isPaused();
    QString text = tr("Select a node in the scene");
    m_list->setEmptyText(node ? tr("This node has no fields")
                              : tr("The fields of the node that is selected in the scene"));
    if (node && node->getName().isEmpty()) {
        text = nodeLabel(*node);
    } else if (node) {
        text = QStringLiteral("%1  %2  %3")
                   .arg(nodeLabel(*node), QChar(0x2013), typeName(node->getObjectType()));
    }
    m_heading->setEnabled(node || paused);
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
    KnField* const field = m_model.field(m_list->indexAt(position));
    auto* const menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("fieldMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (field) {
        addWatchEntries(*menu, *field, [this](KnField& watched, int component) {
            Q_EMIT watchRequested(&watched, component);
        });
        menu->addSeparator();
    }
    m_actions->addTo(*menu);
    menu->popup(m_list->viewport()->mapToGlobal(position));
}
