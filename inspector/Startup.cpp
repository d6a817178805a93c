// SPDX-License-Identifier: BSD-3-Clause
#include "Startup.h"

#include "CommandLine.h"
#include "CrvPluginsManager.h"
#include "CrvProfile.h"
#include "CrvServices.h"
#include "DefaultPlugin.h"
#include "MainWindow.h"
#include "Messages.h"
#include "NodeChoice.h"
#include "SceneRoots.h"
#include "SceneSearch.h"
#include "SceneText.h"

#include <QStringList>

Startup::Startup(MainWindow& window)
    : m_window(window)
{
}

Startup::~Startup() { CrvPluginsManager::getInstance()->unloadAll(); }

bool Startup::applyCommandLine(const CommandLine& commandLine)
{
    return chooseProfile(commandLine) && loadPlugins(commandLine) && openScene(commandLine)
        && select(commandLine);
}

bool Startup::chooseProfile(const CommandLine& commandLine)
{
    CrvPluginsManager* const manager = CrvPluginsManager::getInstance();
    if (!commandLine.profilesFile.isEmpty()
        && !manager->loadProfiles(commandLine.profilesFile, &m_error))
        return false;
    if (commandLine.profile.isEmpty()) {
        m_window.chooseLastProfile();
        return true;
    }
    QStringList names;
    for (CrvProfile* profile : manager->getProfilesList()) {
        names += toQString(profile->getName());
        if (names.constLast() == commandLine.profile) {
            manager->setActiveProfile(profile);
            return true;
        }
    }
    return fail(tr("no profile \"%1\"; there are: %2")
                    .arg(commandLine.profile, names.join(QStringLiteral(", "))));
}

bool Startup::loadPlugins(const CommandLine& commandLine)
{
    CrvPluginsManager* const manager = CrvPluginsManager::getInstance();
    for (const QString& file : commandLine.plugins) {
        if (!manager->loadPlugin(file, &m_error))
            return false;
    }
    // Without its editors the program still shows a scene.
    QString error;
    if (commandLine.plugins.isEmpty() && !manager->loadPlugin(defaultPluginFile(), &error))
        complain(error);
    return true;
}

bool Startup::openScene(const CommandLine& commandLine)
{
    if (!commandLine.scene.isEmpty())
        return m_window.document().open(commandLine.scene, &m_error);
    m_window.document().openStarter();
    return true;
}

bool Startup::select(const CommandLine& commandLine)
{
    if (commandLine.selection.isEmpty()) {
        NodeChoice::chooseFirst();
        return true;
    }
    CrvServices* const services = CrvServices::getInstance();
    SceneSearch search(plainRoots(services->getRoots()));
    if (!search.find(commandLine.selection))
        return fail(search.errorText());
    services->selectNode(search.node());
    if (search.field())
        services->selectField(search.field());
    return true;
}

bool Startup::fail(const QString& error)
{
    m_error = error;
    return false;
}
