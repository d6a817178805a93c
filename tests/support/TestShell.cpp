// SPDX-License-Identifier: BSD-3-Clause
#include "TestShell.h"

#include "CrvExtension.h"
#include "CrvStrings.h"

#include <QDockWidget>
#include <QToolBar>

namespace {

QString call(const char* operation, const QString& what, int number)
{
    return QStringLiteral("%1 %2 %3").arg(QLatin1String(operation), what).arg(number);
}

QString nameOf(const CrvExtension* extension) { return toQString(extension->getName()); }

} // namespace

TestShell::TestShell()
{
    m_window.setObjectName(QStringLiteral("TestShell"));
    m_window.setCentralWidget(new QWidget(&m_window));
    m_window.resize(900, 600);
}

void TestShell::addDockWidget(QDockWidget* dock, int area)
{
    m_calls << call("addDockWidget", dock->windowTitle(), area);
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
    m_calls << call("registerExtension", nameOf(extension), kind);
    m_extensions << extension;
}

void TestShell::unregisterExtension(CrvExtension* extension)
{
    m_calls << QStringLiteral("unregisterExtension ") + nameOf(extension);
    m_extensions.removeAll(extension);
}

void TestShell::addToolBar(QToolBar* toolBar, int area)
{
    m_calls << call("addToolBar", toolBar->windowTitle(), area);
    m_window.addToolBar(static_cast<Qt::ToolBarArea>(area), toolBar);
}

void TestShell::removeToolBar(QToolBar* toolBar)
{
    m_calls << QStringLiteral("removeToolBar ") + toolBar->windowTitle();
    m_window.removeToolBar(toolBar);
    toolBar->setParent(nullptr);
}
