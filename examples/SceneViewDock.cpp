// SPDX-License-Identifier: BSD-3-Clause
#include "SceneViewDock.h"

#include "CrvServices.h"
#include "CrvShell.h"
#include "SceneView.h"

#include <QDockWidget>

#include <utility>

SceneViewDock::SceneViewDock()
{
    m_name = "Scene View";
    m_description = "Shows what the scene looks like.";
    m_author = "Orbel";
    m_version = "1.0.0";
}

void SceneViewDock::load()
{
    CrvExtension::load();
    m_dock = new QDockWidget(tr("Scene View"));
    // A main window keeps and restores its docks by object name.
    m_dock->setObjectName(QStringLiteral("Scene View"));
    m_view = new SceneView(m_dock);
    m_dock->setWidget(m_view);
    m_dock->hide();
}

void SceneViewDock::unload()
{
    delete std::exchange(m_dock, nullptr);
    m_view = nullptr;
    CrvExtension::unload();
}

void SceneViewDock::activate()
{
    CrvExtension::activate();
    connect(
        CrvServices::getInstance(), &CrvServices::rootsChanged, this, &SceneViewDock::takeRoots);
    takeRoots();
    CrvShell::getInstance()->addDockWidget(m_dock, Qt::RightDockWidgetArea);
    CrvShell::getInstance()->registerExtension(this, 1);
    show();
}

void SceneViewDock::deactivate()
{
    CrvExtension::deactivate();
    disconnect(
        CrvServices::getInstance(), &CrvServices::rootsChanged, this, &SceneViewDock::takeRoots);
    CrvShell::getInstance()->removeDockWidget(m_dock);
    hide();
    CrvShell::getInstance()->unregisterExtension(this);
    m_view->setRoots({});
}

void SceneViewDock::show()
{
    CrvExtension::show();
    m_dock->show();
}

void SceneViewDock::hide()
{
    CrvExtension::hide();
    m_dock->hide();
}

void SceneViewDock::takeRoots() { m_view->setRoots(CrvServices::getInstance()->getRoots()); }
