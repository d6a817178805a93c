// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvShell.h"

#include <QMainWindow>
#include <QStringList>

/// A shell over a real main window that writes down what extensions ask of it, a line a call.
class TestShell : public CrvShell {
public:
    TestShell();

    void addDockWidget(QDockWidget* dock, int area) override;
    void removeDockWidget(QDockWidget* dock) override;
    void registerExtension(CrvExtension* extension, int kind) override;
    void unregisterExtension(CrvExtension* extension) override;
    void addToolBar(QToolBar* toolBar, int area) override;
    void removeToolBar(QToolBar* toolBar) override;

    /// Runs the posted events and the kernel's sensors until none is left.
    static void settle();

    QMainWindow& window() { return m_window; }
    /// Such as "addDockWidget Field Editor 2".
    QStringList& calls() { return m_calls; }
    const QList<CrvExtension*>& extensions() const { return m_extensions; }

private:
    QMainWindow m_window;
    QStringList m_calls;
    QList<CrvExtension*> m_extensions; // not owned
};
