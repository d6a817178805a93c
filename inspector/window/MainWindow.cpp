// SPDX-License-Identifier: BSD-3-Clause
#include "MainWindow.h"

#include "CrvServices.h"
#include "EditGestures.h"
#include "EditMenu.h"
#include "EditorHeading.h"
#include "FieldPanel.h"
#include "FileDialogs.h"
#include "FileMenu.h"
#include "FirstSizes.h"
#include "GuestFileMenu.h"
#include "HelpMenu.h"
#include "HistoryView.h"
#include "KnField.h"
#include "NodeMembers.h"
#include "NodeNavigation.h"
#include "PaneColumns.h"
#include "PaneNames.h"
#include "PauseAction.h"
#include "ProfileBoxes.h"
#include "ProfileMemory.h"
#include "ProfileMenu.h"
#include "SceneActions.h"
#include "ScenePanel.h"
#include "UndoKeys.h"
#include "ViewMenu.h"
#include "WatchPanel.h"
#include "WindowGuide.h"
#include "WindowLayout.h"
#include "WindowTitle.h"

#include <QCloseEvent>
#include <QDockWidget>
#include <QMenuBar>
#include <QMimeData>
#include <QStatusBar>
#include <QToolBar>
#include <QTreeView>

#include <utility>

namespace {

// Changes with the set of the window's own docks.
constexpr int layoutVersion = 2;

// How long the status bar shows what somebody asked for, in milliseconds.
constexpr int toldTime = 10000;

// What a list shows first of all.
constexpr int sceneNameCharacters = 24; // with the indentation
constexpr int valueCharacters = 20;

// The one file of a drag; empty for anything else.
QString draggedFile(const QMimeData* data)
{
    return data->urls().size() == 1 ? data->urls().constFirst().toLocalFile() : QString();
}

} // namespace

MainWindow::MainWindow(QSettings* settings, Role role, QWidget* parent)
    : QMainWindow(parent)
    , m_settings(settings)
    , m_sizes(new FirstSizes(this))
    , m_profileBoxes(new ProfileBoxes(this))
{
    setObjectName(QStringLiteral("mainWindow"));
    if (role == Role::Program)
        m_document = std::make_unique<SceneDocument>();
    setAcceptDrops(role == Role::Program);
    // A guest's process lives on without it, and doesn't wait for it either.
    setAttribute(Qt::WA_QuitOnClose, role == Role::Program);
    if (settings)
        m_layout = new WindowLayout(this, settings, layoutVersion);
    // Both columns are as high as the window; what docks below stands between them.
    setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);

    buildPanels();
    buildFileMenu(settings);
    buildEditMenu();
    buildViewMenu();
    menuBar()->addMenu(new HelpMenu(this));
    new UndoKeys(this);
    m_gestures = new EditGestures(CrvServices::getInstance()->getUndoSteps(), this);

    m_sizes->apply(m_sceneDock, m_historyDock);
    m_scenePanel->setFocus();
}

MainWindow::~MainWindow() = default;

void MainWindow::buildPanels()
{
    m_scenePanel = new ScenePanel(m_document ? SceneEdits::Roots::Free : SceneEdits::Roots::Fixed);
    m_sceneDock = addPanelDock(m_scenePanel, QStringLiteral("sceneDock"), tr("Scene"));
    auto* const history = new HistoryView(CrvServices::getInstance()->getUndoSteps());
    history->setEmptyLabel(m_document ? tr("Scene as opened") : tr("Before the first edit"));
    m_historyDock = addPanelDock(history, QStringLiteral("historyDock"), tr("History"));
    auto* const fields = new FieldPanel(this);
    setCentralWidget(fields);
    completeNames(fields, tr("Fields"));
    connect(m_scenePanel, &ScenePanel::nodesSelected, fields, &FieldPanel::showNodes);
    connect(m_scenePanel, &ScenePanel::menuRequested, fields, &FieldPanel::addNodeEntriesTo);
    auto* const members = new NodeMembers(this);
    connect(m_scenePanel, &ScenePanel::menuRequested, members, &NodeMembers::addTo);
    connect(members, &NodeMembers::told, this,
        [this](const QString& text) { statusBar()->showMessage(text, toldTime); });
    buildWatch(fields);
    shareColumns(QStringLiteral("sceneTree"), sceneNameCharacters, { SceneModel::TypeColumn });
    shareColumns(QStringLiteral("fieldList"), valueCharacters,
        { FieldListModel::TypeColumn, FieldListModel::IgnoredColumn, FieldListModel::NameColumn });
}

void MainWindow::shareColumns(const QString& view, int characters, const std::vector<int>& others)
{
    auto* const columns = new PaneColumns(findChild<QTreeView*>(view), characters, others);
    if (m_layout)
        m_layout->addColumns(columns);
}

// Closed until somebody wants to watch something.
void MainWindow::buildWatch(FieldPanel* fields)
{
    auto* const panel = new WatchPanel;
    m_watchDock = addPanelDock(panel, QStringLiteral("watchDock"), tr("Watch"));
    QMainWindow::addDockWidget(Qt::BottomDockWidgetArea, m_watchDock);
    m_watchDock->hide();
    connect(
        fields, &FieldPanel::watchRequested, panel, [this, panel](KnField* field, int component) {
            m_watchDock->show();
            m_watchDock->raise();
            panel->watch(field, component);
        });
    m_sizes->follow(m_watchDock);
}

QDockWidget* MainWindow::addPanelDock(QWidget* panel, const QString& name, const QString& title)
{
    auto* const dock = new QDockWidget(title, this);
    dock->setObjectName(name);
    dock->setWidget(panel);
    QMainWindow::addDockWidget(Qt::LeftDockWidgetArea, dock);
    completeNames(dock, title);
    return dock;
}

void MainWindow::buildFileMenu(QSettings* settings)
{
    if (!m_document) {
        menuBar()->addMenu(new GuestFileMenu(this));
        setWindowTitle(WindowTitle::ofGuest());
        return;
    }
    m_fileMenu = new FileMenu(m_document.get(), settings, this);
    menuBar()->addMenu(m_fileMenu);
    connect(m_document.get(), &SceneDocument::fileNameChanged, this, &MainWindow::showFileName);
    connect(m_document.get(), &SceneDocument::modifiedChanged, this, &QWidget::setWindowModified);
    showFileName();
}

void MainWindow::buildEditMenu()
{
    auto* const menu = new EditMenu(this);
    m_scenePanel->actions().fillEditMenu(menu);
    menu->addSeparator();
    m_scenePanel->actions().fillViewMenu(menu);
    menu->addSeparator();
    menu->addAction(tr("&Find Node"), QKeySequence::Find, this, &MainWindow::findNode);
    m_scenePanel->navigation().fillMenu(menu);
    menu->addAction(findChild<FieldPanel*>()->pauseAction());
    menuBar()->addMenu(menu);
}

void MainWindow::findNode()
{
    m_sceneDock->show();
    m_sceneDock->raise();
    m_scenePanel->focusFilter();
}

void MainWindow::buildViewMenu()
{
    m_viewMenu = new ViewMenu(this);
    m_viewMenu->insertActions(m_viewMenu->endOfExtensions(),
        { m_sceneDock->toggleViewAction(), m_historyDock->toggleViewAction(),
            m_watchDock->toggleViewAction() });
    m_viewMenu->insertSeparator(m_viewMenu->endOfExtensions());
    m_viewMenu->addMenu(new ProfileMenu(m_viewMenu));
    m_guide = new WindowGuide(this, m_sceneDock, m_viewMenu);
    menuBar()->addMenu(m_viewMenu);
}

void MainWindow::showFileName() { setWindowTitle(WindowTitle::ofFile(m_document->fileName())); }

void MainWindow::chooseLastProfile() { ProfileMemory::chooseLast(m_settings); }

// Which docks are shown follows from the profile and the selection. From last time only their
// places come back, and which of them the person had closed.
void MainWindow::restoreLayout()
{
    if (!m_layout) {
        m_sizes->fitScreen();
        return;
    }
    new ProfileMemory(m_settings, this);
    QList<QDockWidget*> hidden = findChildren<QDockWidget*>();
    hidden.removeIf([](const QDockWidget* dock) { return !dock->isHidden(); });
    if (m_layout->restore())
        m_sizes->keep();
    else
        m_sizes->fitScreen();
    for (QDockWidget* dock : std::as_const(hidden))
        dock->hide();
    m_viewMenu->takeOverPanes();
    // A dock that had nothing to show last time is needed now, if something is selected already.
    CrvServices* const services = CrvServices::getInstance();
    if (services->getSelectedNode())
        services->announceSelection();
}

bool MainWindow::returnPlaces()
{
    if (!m_places.giveBack())
        return false;
    m_viewMenu->takeOverPanes();
    return true;
}

void MainWindow::addDockWidget(QDockWidget* dock, int area)
{
    m_gestures->watch(dock);
    if (m_places.takeBack(dock)) {
        m_viewMenu->addPane(dock);
        return;
    }
    // Also at the bottom one above the other: curves and messages need the width.
    QMainWindow::addDockWidget(static_cast<Qt::DockWidgetArea>(area), dock, Qt::Vertical);
    if (area == Qt::RightDockWidgetArea) {
        new EditorHeading(dock);
        m_guide->addEditorDock(dock);
    }
    completeNames(dock, dock->windowTitle());
    m_viewMenu->addPane(dock);
    m_sizes->follow(dock);
}

void MainWindow::removeDockWidget(QDockWidget* dock)
{
    m_viewMenu->removePane(dock);
    if (m_places.remove(dock))
        EditorHeading::remove(dock);
    m_gestures->unwatch(dock);
}

void MainWindow::registerExtension(CrvExtension* extension, int)
{
    m_viewMenu->addExtension(extension);
}

void MainWindow::unregisterExtension(CrvExtension* extension)
{
    m_viewMenu->removeExtension(extension);
}

void MainWindow::addToolBar(QToolBar* toolBar, int area)
{
    if (!m_places.takeBack(toolBar))
        QMainWindow::addToolBar(static_cast<Qt::ToolBarArea>(area), toolBar);
    m_viewMenu->addPane(toolBar);
    completeNames(toolBar, toolBar->windowTitle());
    m_profileBoxes->follow(toolBar);
}

void MainWindow::removeToolBar(QToolBar* toolBar)
{
    m_viewMenu->removePane(toolBar);
    m_places.remove(toolBar);
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (m_fileMenu && !m_fileMenu->mayDropScene()) {
        event->ignore();
        return;
    }
    event->accept();
    if (!m_document && isHidden())
        return;
    if (m_layout)
        m_layout->save();
    if (m_document)
        return;
    FileDialogs::commitTyping(this);
    hide();
    Q_EMIT closed();
}

bool MainWindow::focusNextPrevChild(bool next)
{
    return m_guide->step(next) || QMainWindow::focusNextPrevChild(next);
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!draggedFile(event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event)
{
    event->acceptProposedAction();
    m_fileMenu->openFile(draggedFile(event->mimeData()));
}
