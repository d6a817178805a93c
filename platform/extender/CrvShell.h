// SPDX-License-Identifier: BSD-3-Clause
#pragma once

class CrvExtension;
class QDockWidget;
class QToolBar;

/// The main window, as far as extensions see it. The first object of a subclass is the instance
/// until it is destroyed; a second one is reported as an error. The plug-ins are unloaded before it
/// goes, since they take their docks and tool bars out of it. Areas are values of
/// Qt::DockWidgetArea and Qt::ToolBarArea.
class CrvShell {
public:
    CrvShell(const CrvShell&) = delete;
    CrvShell& operator=(const CrvShell&) = delete;

    /// Null while there is none.
    static CrvShell* getInstance();

    virtual void addDockWidget(QDockWidget* dock, int area) = 0;
    virtual void removeDockWidget(QDockWidget* dock) = 0;
    /// Makes the extension an entry of the View menu, which calls its `show` and `hide`. `kind` 1
    /// stands for an extension that a person may show and hide.
    virtual void registerExtension(CrvExtension* extension, int kind) = 0;
    virtual void unregisterExtension(CrvExtension* extension) = 0;
    virtual void addToolBar(QToolBar* toolBar, int area) = 0;
    virtual void removeToolBar(QToolBar* toolBar) = 0;
    virtual ~CrvShell();

protected:
    CrvShell();
};
