// SPDX-License-Identifier: BSD-3-Clause
#include "MainWindow.h"

#include "CrvServices.h"
#include "FieldPanel.h"
#include "FileMenu.h"
#include "ProfileMenu.h"
#include "ScenePanel.h"
#include "UndoKeys.h"
#include "ViewMenu.h"
#include "WindowLayout.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QFileInfo>
#include <QMenuBar>
#include <QMimeData>
#include <QToolBar>
#include <QUndoStack>
#include <QUndoView>

namespace {

// Changes with the set of the window's own docks.
constexpr int layoutVersion = 1;

// In pixels: the sizes in a fresh layout.
constexpr int sceneWidth = 320;
constexpr int historyHeight = 160;
constexpr int editorWidth = 400;
constexpr int bottomHeight = 250;
constexpr QSize windowSize(1280, 800);

// The one file of a drag; empty for anything else.
QString draggedFile(const QMimeData* data)
{
    return data->urls().size() == 1 ? data->urls().constFirst().toLocalFile() : QString();
}

} // namespace

MainWindow::MainWindow(QSettings* settings, QWidget* parent)
    : QMainWindow(parent)
{
    setObjectName(QStringLiteral("mainWindow"));
    setAcceptDrops(true);
    if (settings)
        m_layout = new WindowLayout(this, settings, layoutVersion);
    // Both columns are as high as the window; what docks below stands between them.
    setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);

    buildPanels();
    m_fileMenu = new FileMenu(&m_document, settings, this);
    menuBar()->addMenu(m_fileMenu);
    buildEditMenu();
    buildViewMenu();
    qApp->installEventFilter(new UndoKeys(this));

    connect(&m_document, &SceneDocument::fileNameChanged, this, &MainWindow::showFileName);
    connect(&m_document, &SceneDocument::modifiedChanged, this, &QWidget::setWindowModified);
    showFileName();
    resize(windowSize);
    resizeDocks({ m_sceneDock }, { sceneWidth }, Qt::Horizontal);
    resizeDocks({ m_sceneDock, m_historyDock },
        { windowSize.height() - historyHeight, historyHeight }, Qt::Vertical);
    m_scenePanel->setFocus();
}

MainWindow::~MainWindow() = default;

void MainWindow::buildPanels()
{
    m_scenePanel = new ScenePanel;
    m_sceneDock = addPanelDock(m_scenePanel, QStringLiteral("sceneDock"), tr("Scene"));
    auto* const history = new QUndoView(CrvServices::getInstance()->getUndoStack());
    history->setObjectName(QStringLiteral("historyView"));
    history->setEmptyLabel(tr("Scene as opened"));
    m_historyDock = addPanelDock(history, QStringLiteral("historyDock"), tr("History"));
    setCentralWidget(new FieldPanel(this));
}

QDockWidget* MainWindow::addPanelDock(QWidget* panel, const QString& name, const QString& title)
{
    auto* const dock = new QDockWidget(title, this);
    dock->setObjectName(name);
    dock->setWidget(panel);
    QMainWindow::addDockWidget(Qt::LeftDockWidgetArea, dock);
    return dock;
}

void MainWindow::buildEditMenu()
{
    QMenu* const menu = menuBar()->addMenu(tr("&Edit"));
    menu->setObjectName(QStringLiteral("editMenu"));
    QUndoStack* const stack = CrvServices::getInstance()->getUndoStack();
    QAction* const undo = stack->createUndoAction(this, tr("&Undo"));
    undo->setObjectName(QStringLiteral("undoAction"));
    undo->setShortcuts(QKeySequence::Undo);
    menu->addAction(undo);
    QAction* const redo = stack->createRedoAction(this, tr("&Redo"));
    redo->setObjectName(QStringLiteral("redoAction"));
    // Both keys that people use, whichever of them is the platform's.
    redo->setShortcuts(
        { QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), QKeySequence(Qt::CTRL | Qt::Key_Y) });
    menu->addAction(redo);
    menu->addSeparator();
    menu->addAction(tr("&Find Node"), QKeySequence::Find, this, &MainWindow::findNode);
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
        { m_sceneDock->toggleViewAction(), m_historyDock->toggleViewAction() });
    m_viewMenu->insertSeparator(m_viewMenu->endOfExtensions());
    m_viewMenu->addMenu(new ProfileMenu(m_viewMenu));
    menuBar()->addMenu(m_viewMenu);
}

void MainWindow::showFileName()
{
    const QString name = m_document.fileName().isEmpty()
        ? tr("Untitled")
        : QFileInfo(m_document.fileName()).fileName();
    // A file name may hold the two signs that stand for "modified".
    QString shown = name;
    shown.replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
    setWindowTitle(QStringLiteral("%1[*] %2 Corvane").arg(shown, QChar(0x2013)));
}

// Which docks are shown follows from the profile and the selection. From last time only their
// places come back, and which of them the person had closed.
void MainWindow::restoreLayout()
{
    if (!m_layout)
        return;
    QList<QDockWidget*> hidden = findChildren<QDockWidget*>();
    hidden.removeIf([](const QDockWidget* dock) { return !dock->isHidden(); });
    m_layoutRestored = m_layout->restore();
    for (QDockWidget* dock : std::as_const(hidden))
        dock->hide();
    m_viewMenu->takeOverPanes();
    // A dock that had nothing to show last time is needed now, if something is selected already.
    CrvServices* const services = CrvServices::getInstance();
    if (services->getSelectedNode())
        services->announceSelection();
}

void MainWindow::addDockWidget(QDockWidget* dock, int area)
{
    QMainWindow::addDockWidget(static_cast<Qt::DockWidgetArea>(area), dock);
    m_viewMenu->addPane(dock);
    connect(
        dock, &QDockWidget::visibilityChanged, this, [this, dock] { giveFirstSize(dock); },
        Qt::SingleShotConnection);
}

// A dock comes up as small as its content at that moment, and its editor comes later.
void MainWindow::giveFirstSize(QDockWidget* dock)
{
    if (m_layoutRestored)
        return;
    if (dockWidgetArea(dock) == Qt::BottomDockWidgetArea)
        resizeDocks({ dock }, { bottomHeight }, Qt::Vertical);
    else
        resizeDocks({ dock }, { editorWidth }, Qt::Horizontal);
}

void MainWindow::removeDockWidget(QDockWidget* dock)
{
    m_viewMenu->removePane(dock);
    QMainWindow::removeDockWidget(dock);
    dock->setParent(nullptr); // it is the extension's
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
    QMainWindow::addToolBar(static_cast<Qt::ToolBarArea>(area), toolBar);
    m_viewMenu->addPane(toolBar);
}

void MainWindow::removeToolBar(QToolBar* toolBar)
{
    m_viewMenu->removePane(toolBar);
    QMainWindow::removeToolBar(toolBar);
    toolBar->setParent(nullptr); // it is the extension's
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (!m_fileMenu->mayDropScene()) {
        event->ignore();
        return;
    }
    if (m_layout)
        m_layout->save();
    event->accept();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!draggedFile(event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event)
{
    m_fileMenu->openFile(draggedFile(event->mimeData()));
}
