// SPDX-License-Identifier: BSD-3-Clause
#include "TestShell.h"

#include "CrvExtension.h"
#include "CrvStrings.h"
#include "KnSensorQueue.h"

#include <QCoreApplication>
#include <QDockWidget>
#include <QToolBar>

TestShell::TestShell()
{
    m_window.setObjectName(QStringLiteral("TestShell"));
    m_window.setCentralWidget(new QWidget(&m_window));
    m_window.resize(900, 600);
}

void TestShell::addDockWidget(QDockWidget* dock, int area)
{
    m_calls << QStringLiteral("addDockWidget %1 %2").arg(dock->windowTitle()).arg(area);
    m_window.addDockWidget(static_cast<Qt::DockWidgetArea>(area), dock);
}

void TestShell::removeDockWidget(QDockWidget* dock)
{
    m_calls << QStringLiteral("removeDockWidget ") + dock->windowTitle();
    m_window.removeDockWidget(dock);
    dock->setParent(nullptr);
}

void TestShell::registerExtension(CrvExtension* extension, int kind)
{
    m_calls
        << QStringLiteral("registerExtension %1 %2").arg(toQString(extension->getName())).arg(kind);
    m_extensions << extension;
}

void TestShell::unregisterExtension(CrvExtension* extension)
{
    m_calls << QStringLiteral("unregisterExtension ") + toQString(extension->getName());
    m_extensions.removeAll(extension);
}

void TestShell::addToolBar(QToolBar* toolBar, int area)
{
    m_calls << QStringLiteral("addToolBar %1 %2").arg(toolBar->windowTitle()).arg(area);
    m_window.addToolBar(static_cast<Qt::ToolBarArea>(area), toolBar);
}

void TestShell::removeToolBar(QToolBar* toolBar)
{
    m_calls << QStringLiteral("removeToolBar ") + toolBar->windowTitle();
    m_window.removeToolBar(toolBar);
    toolBar->setParent(nullptr);
}

void TestShell::settle()
{
    do {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    } while (!KnSensorQueue::getInstance().isEmpty());
}
