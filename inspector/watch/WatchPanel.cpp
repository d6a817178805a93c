// SPDX-License-Identifier: BSD-3-Clause
#include "WatchPanel.h"

#include "FieldMimeData.h"
#include "FieldNumbers.h"
#include "WatchPlot.h"

#include <QAction>
#include <QClipboard>
#include <QDragEnterEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QSplitter>
#include <QStackedLayout>
#include <QToolButton>
#include <QTreeView>

namespace {

constexpr int pictureInterval = 33; // in milliseconds: at most 30 a second

KnField* watchableField(const QMimeData* data)
{
    KnField* const field = FieldMimeData::fieldOf(data);
    return field && FieldNumbers::of(*field) ? field : nullptr;
}

} // namespace

WatchPanel::WatchPanel(QWidget* parent)
    : QWidget(parent)
    , m_table(new QTreeView)
    , m_plot(new WatchPlot(&m_list))
    , m_splitter(new QSplitter)
    , m_pages(new QStackedLayout(this))
    , m_commonScale(new QAction(tr("C&ommon Scale"), this))
    , m_live(new QAction(tr("Back to &Live"), this))
    , m_copy(new QAction(tr("&Copy as CSV"), this))
    , m_remove(new QAction(tr("&Remove"), this))
{
    setObjectName(QStringLiteral("watchPanel"));
    setAcceptDrops(true);
    m_timer.setSingleShot(true);
    m_timer.setInterval(pictureInterval);
    buildTable();
    buildActions();

    auto* const hint = new QLabel(tr("Right-click a field and choose Watch, or drag it here"));
    hint->setObjectName(QStringLiteral("watchHint"));
    hint->setAlignment(Qt::AlignCenter);
    hint->setWordWrap(true);
    m_pages->addWidget(hint);
    m_pages->addWidget(buildContent());

    connect(&m_list.clock(), &WatchClock::stamped, &m_timer, qOverload<>(&QTimer::start));
    connect(&m_timer, &QTimer::timeout, this, &WatchPanel::refresh);
    connect(m_plot, &WatchPlot::shownChanged, this, &WatchPanel::updateShown);
    connect(&m_list, &QAbstractItemModel::rowsInserted, this, &WatchPanel::updateRows);
    connect(&m_list, &QAbstractItemModel::rowsRemoved, this, &WatchPanel::updateRows);
    connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, m_plot,
        [this](const QModelIndex& current) { m_plot->setCurrentRow(current.row()); });
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
        [this] { m_remove->setEnabled(m_table->selectionModel()->hasSelection()); });
    m_list.setPalette(palette());
    updateRows();
}

WatchPanel::~WatchPanel() = default;

void WatchPanel::buildTable()
{
    m_table->setObjectName(QStringLiteral("watchTable"));
    m_table->setAccessibleName(tr("Watched values"));
    m_table->setModel(&m_list);
    m_table->setRootIsDecorated(false);
    m_table->setUniformRowHeights(true);
    m_table->setAllColumnsShowFocus(true);
    m_table->setSelectionMode(QAbstractItemView::ExtendedSelection);
    // The end of a name tells components apart.
    m_table->setTextElideMode(Qt::ElideMiddle);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    QHeaderView& header = *m_table->header();
    const int character = fontMetrics().averageCharWidth();
    header.setStretchLastSection(false);
    header.resizeSection(WatchList::NameColumn, character * 24);
    for (const int column : { WatchList::ValueColumn, WatchList::LowColumn, WatchList::HighColumn })
        header.resizeSection(column, character * 15); // a float with all its digits
}

void WatchPanel::buildActions()
{
    m_commonScale->setObjectName(QStringLiteral("watchCommonScale"));
    m_commonScale->setCheckable(true);
    m_commonScale->setToolTip(tr("One scale for all curves instead of one for each"));
    connect(m_commonScale, &QAction::toggled, m_plot, &WatchPlot::setCommonScale);

    m_live->setObjectName(QStringLiteral("watchLive"));
    m_live->setToolTip(tr("Show the last minute again (double click, or End)"));
    connect(m_live, &QAction::triggered, m_plot, &WatchPlot::goLive);

    m_copy->setObjectName(QStringLiteral("watchCopy"));
    m_copy->setShortcuts(QKeySequence::Copy);
    m_copy->setToolTip(tr("Copy all stored samples as comma-separated values"));
    connect(m_copy, &QAction::triggered, this, &WatchPanel::copy);

    m_remove->setObjectName(QStringLiteral("watchRemove"));
    m_remove->setShortcuts(QKeySequence::Delete);
    m_remove->setToolTip(tr("Watch the selected rows no longer"));
    m_remove->setEnabled(false);
    connect(m_remove, &QAction::triggered, this, &WatchPanel::removeSelected);

    for (QAction* action : { m_commonScale, m_live, m_copy, m_remove }) {
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        addAction(action);
    }
    setContextMenuPolicy(Qt::ActionsContextMenu);
}

QWidget* WatchPanel::buildButtons()
{
    auto* const row = new QWidget;
    auto* const layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QAction* action : { m_commonScale, m_live, m_copy, m_remove }) {
        auto* const button = new QToolButton;
        button->setObjectName(action->objectName() + QStringLiteral("Button"));
        button->setDefaultAction(action);
        button->setFocusPolicy(Qt::TabFocus);
        layout->addWidget(button);
    }
    layout->addStretch();
    return row;
}

QWidget* WatchPanel::buildContent()
{
    auto* const content = new QWidget;
    auto* const layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(buildButtons());
    layout->addWidget(m_splitter, 1);
    m_splitter->setObjectName(QStringLiteral("watchSplitter"));
    m_splitter->setChildrenCollapsible(false);
    m_splitter->addWidget(m_table);
    m_splitter->addWidget(m_plot);
    m_splitter->setStretchFactor(0, 1);
    m_splitter->setStretchFactor(1, 1);
    return content;
}

void WatchPanel::watch(KnField* field, int component)
{
    const int row = m_list.add(*field, component);
    if (row < 0)
        return;
    const QModelIndex index = m_list.index(row, WatchList::NameColumn);
    m_table->selectionModel()->setCurrentIndex(
        index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    m_table->scrollTo(index);
}

void WatchPanel::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    m_list.setSampling(true);
    refresh();
}

void WatchPanel::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    m_list.setSampling(false);
    m_timer.stop();
}

void WatchPanel::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        m_list.setPalette(palette());
}

// Table and curves stand side by side where there is room for it.
void WatchPanel::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_splitter->setOrientation(width() > height() ? Qt::Horizontal : Qt::Vertical);
}

void WatchPanel::dragEnterEvent(QDragEnterEvent* event)
{
    if (watchableField(event->mimeData()))
        event->acceptProposedAction();
}

void WatchPanel::dropEvent(QDropEvent* event)
{
    KnField* const field = watchableField(event->mimeData());
    if (!field)
        return;
    for (int i = 0; i < FieldNumbers::of(*field)->count; ++i)
        watch(field, i);
    event->acceptProposedAction();
}

void WatchPanel::refresh()
{
    m_list.clock().acknowledge();
    m_plot->follow();
}

void WatchPanel::updateShown()
{
    const WatchView& view = m_plot->view();
    m_list.show(view.from(), view.to(), m_plot->ruler());
    m_live->setEnabled(!view.isLive());
}

void WatchPanel::updateRows()
{
    const bool any = m_list.rowCount() > 0;
    m_pages->setCurrentIndex(any ? 1 : 0);
    for (QAction* action : { m_commonScale, m_copy })
        action->setEnabled(any);
    // The row in front may have another number now.
    m_plot->setCurrentRow(m_table->currentIndex().row());
    refresh();
}

void WatchPanel::removeSelected()
{
    QModelIndexList rows = m_table->selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end());
    while (!rows.isEmpty())
        m_list.removeRow(rows.takeLast().row());
}

void WatchPanel::copy() const { QGuiApplication::clipboard()->setText(m_list.toCsv()); }
