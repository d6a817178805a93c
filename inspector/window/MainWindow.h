// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvShell.h"
#include "PanePlaces.h"
#include "SceneDocument.h"

#include <QMainWindow>

#include <memory>
#include <vector>

class EditGestures;
class FieldPanel;
class FileMenu;
class FirstSizes;
class ProfileBoxes;
class QSettings;
class ScenePanel;
class ViewMenu;
class WindowGuide;
class WindowLayout;

/// The inspector's window: the scene on the left, the fields of the selected node in the middle,
/// and around them what the extensions bring. It must be made before the plug-ins are loaded, and
/// outlive their extensions.
class MainWindow : public QMainWindow, public CrvShell {
    Q_OBJECT
public:
    enum class Role {
        Program, ///< opens and saves scene files, and asks before edits are lost
        Guest, ///< shows the scene of the process that it lives in, and keeps nothing alive
    };

    /// `settings` outlives the window; null keeps nothing from one start to the next.
    explicit MainWindow(QSettings* settings, Role role = Role::Program, QWidget* parent = nullptr);
    ~MainWindow() override;

    /// The program's; a guest has none.
    SceneDocument& document() { return *m_document; }
    /// Makes the profile active that was chosen last time, if there is one. What a person chooses
    /// once the layout has been restored is kept for the next time.
    void chooseLastProfile();
    /// Puts the docks where they stood last time; called before the window is shown, when all of
    /// them are there.
    void restoreLayout();
    /// From now on the docks and tool bars that extensions take out stay where they are, hidden.
    void keepPlaces() { m_places.keep(); }
    /// Ends that: those that were put in again stand where they stood, the others go. False if no
    /// places were kept.
    bool returnPlaces();

    void addDockWidget(QDockWidget* dock, int area) override;
    void removeDockWidget(QDockWidget* dock) override;
    void registerExtension(CrvExtension* extension, int kind) override;
    void unregisterExtension(CrvExtension* extension) override;
    void addToolBar(QToolBar* toolBar, int area) override;
    void removeToolBar(QToolBar* toolBar) override;

Q_SIGNALS:
    /// A guest was closed, by the person or the program, and is hidden by now.
    void closed();

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void buildPanels();
    void buildFileMenu(QSettings* settings);
    void buildEditMenu();
    void buildViewMenu();
    /// The dock owns the panel, and the window the dock.
    QDockWidget* addPanelDock(QWidget* panel, const QString& name, const QString& title);
    void buildWatch(FieldPanel* fields);
    void findNode();
    /// Of one of the trees, by object name.
    void shareColumns(const QString& view, int characters, const std::vector<int>& others);
    void showFileName();

    QSettings* const m_settings; // not owned; null if nothing is kept
    WindowLayout* m_layout = nullptr; // child; null if nothing is kept
    std::unique_ptr<SceneDocument> m_document; // null for a guest
    ScenePanel* m_scenePanel = nullptr; // child
    FileMenu* m_fileMenu = nullptr; // child; null for a guest
    ViewMenu* m_viewMenu = nullptr; // child
    WindowGuide* m_guide = nullptr; // child
    EditGestures* m_gestures = nullptr; // child
    QDockWidget* m_sceneDock = nullptr; // child
    QDockWidget* m_historyDock = nullptr; // child
    QDockWidget* m_watchDock = nullptr; // child
    FirstSizes* m_sizes; // child
    ProfileBoxes* m_profileBoxes; // child
    PanePlaces m_places { this };
};
