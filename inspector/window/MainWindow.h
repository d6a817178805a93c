// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvShell.h"
#include "SceneDocument.h"

#include <QMainWindow>

class FileMenu;
class QSettings;
class ScenePanel;
class ViewMenu;
class WindowLayout;

/// The inspector's window: the scene on the left, the fields of the selected node in the middle,
/// and around them what the extensions bring. It must be made before the plug-ins are loaded, and
/// outlive their extensions.
class MainWindow : public QMainWindow, public CrvShell {
    Q_OBJECT
public:
    /// `settings` outlives the window; null keeps nothing from one start to the next.
    explicit MainWindow(QSettings* settings, QWidget* parent = nullptr);
    ~MainWindow() override;

    SceneDocument& document() { return m_document; }
    /// Puts the docks where they stood last time; called when all of them are there.
    void restoreLayout();

    void addDockWidget(QDockWidget* dock, int area) override;
    void removeDockWidget(QDockWidget* dock) override;
    void registerExtension(CrvExtension* extension, int kind) override;
    void unregisterExtension(CrvExtension* extension) override;
    void addToolBar(QToolBar* toolBar, int area) override;
    void removeToolBar(QToolBar* toolBar) override;

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void buildPanels();
    void buildEditMenu();
    void buildViewMenu();
    /// The dock owns the panel, and the window the dock.
    QDockWidget* addPanelDock(QWidget* panel, const QString& name, const QString& title);
    void findNode();
    void giveFirstSize(QDockWidget* dock);
    void showFileName();

    WindowLayout* m_layout = nullptr; // child; null if nothing is kept
    SceneDocument m_document;
    ScenePanel* m_scenePanel = nullptr; // child
    FileMenu* m_fileMenu = nullptr; // child
    ViewMenu* m_viewMenu = nullptr; // child
    QDockWidget* m_sceneDock = nullptr; // child
    QDockWidget* m_historyDock = nullptr; // child
    bool m_layoutRestored = false;
};
