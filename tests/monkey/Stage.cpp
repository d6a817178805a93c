// SPDX-License-Identifier: BSD-3-Clause
#include "Stage.h"

#include "CommandLine.h"
#include "CrvInspector.h"
#include "CrvPluginsManager.h"
#include "CrvServices.h"
#include "KnDatabase.h"
#include "KnField.h"
#include "KnGraphWalk.h"
#include "KnGroup.h"
#include "MainWindow.h"
#include "SceneReader.h"
#include "SceneRoots.h"
#include "SceneText.h"
#include "Startup.h"
#include "StepRandom.h"

#include <QDir>
#include <QFile>
#include <QUndoStack>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

QStringList pluginFiles()
{
    return { QStringLiteral(CORVANE_PLUGIN), QStringLiteral(CORVANE_EXAMPLE_PLUGIN) };
}

QString sceneFile() { return QStringLiteral(CORVANE_SCENES "/all_fields.json"); }

KnNodePtr freshScene()
{
    KnDatabase::init();
    return SceneReader().readFile(sceneFile());
}

/// In the order in which a person meets them, so that a choice doesn't hang on addresses.
void collect(KnFieldContainer* node, std::vector<KnFieldContainer*>& nodes)
{
    constexpr std::size_t enough = 300; // nodes may stand in many places
    if (nodes.size() >= enough)
        return;
    nodes.push_back(node);
    if (const auto* const group = dynamic_cast<const KnGroup*>(node)) {
        for (int i = 0; i < group->getNumChildren(); ++i)
            collect(group->getChild(i), nodes);
    }
}

QString nameOf(const KnFieldContainer* node)
{
    return typeName(node->getObjectType()) + u' ' + nodeLabel(*node);
}

} // namespace

Stage::Stage(Role role)
    : m_role(role)
{
    QDir::setCurrent(m_folder.path());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_folder.path());
    CrvPluginsManager::getInstance()->useBuiltInProfiles();
    start();
}

Stage::~Stage()
{
    m_inspector.reset();
    m_startup.reset();
    m_window.reset();
    QDir::setCurrent(QDir::rootPath());
}

void Stage::start()
{
    if (m_role == Role::Program)
        startProgram();
    else
        startGuest();
    window().activateWindow();
    ++m_beginnings;
}

void Stage::startProgram()
{
    // Something else may have been saved over it.
    const QString scene = m_folder.filePath(u"0.json"_s);
    QFile::remove(scene);
    QFile::copy(sceneFile(), scene);
    m_settings
        = std::make_unique<QSettings>(m_folder.filePath(u"settings.ini"_s), QSettings::IniFormat);
    m_window = std::make_unique<MainWindow>(m_settings.get());
    m_startup = std::make_unique<Startup>(*m_window);
    CommandLine commandLine;
    commandLine.scene = scene;
    commandLine.plugins = pluginFiles();
    if (!m_startup->applyCommandLine(commandLine))
        qFatal("%s", qPrintable(m_startup->errorText()));
    m_window->restoreLayout();
    m_window->show();
}

void Stage::startGuest()
{
    if (m_scene.empty())
        m_scene.push_back(freshScene());
    m_inspector = std::make_unique<CrvInspector>();
    m_inspector->setRoots(plainRoots(m_scene));
    std::string error;
    if (!m_inspector->loadPlugin(CORVANE_EXAMPLE_PLUGIN, &error))
        qFatal("%s", error.c_str());
    m_inspector->show();
}

void Stage::restart()
{
    if (m_isKept)
        return;
    m_inspector.reset();
    m_startup.reset();
    m_window.reset();
    start();
}

void Stage::replaceScene(KnFieldContainer* furtherRoot)
{
    m_scene = { freshScene() };
    if (furtherRoot)
        m_scene.emplace_back(furtherRoot);
    CrvServices::getInstance()->selectNode(nullptr);
    CrvServices::getInstance()->getUndoStack()->clear();
    m_inspector->setRoots(plainRoots(m_scene));
    ++m_beginnings;
}

void Stage::reopen()
{
    if (m_inspector)
        m_inspector->show();
    else
        restart();
}

void Stage::reloadPlugins()
{
    if (m_inspector)
        return;
    CrvPluginsManager* const manager = CrvPluginsManager::getInstance();
    manager->unloadAll();
    for (const QString& file : pluginFiles()) {
        QString error;
        if (!manager->loadPlugin(file, &error))
            qFatal("%s", qPrintable(error));
    }
    ++m_beginnings;
}

MainWindow& Stage::window()
{
    return m_inspector ? static_cast<MainWindow&>(*m_inspector->window()) : *m_window;
}

QString Stage::fileName(StepRandom& random) const
{
    constexpr int count = 4;
    return m_folder.filePath(u"%1.json"_s.arg(random.below(count)));
}

const std::vector<KnNodePtr>& Stage::roots() const
{
    return CrvServices::getInstance()->getRoots();
}

KnFieldContainer* Stage::anyNode(StepRandom& random) const
{
    std::vector<KnFieldContainer*> nodes;
    for (const KnNodePtr& root : roots())
        collect(root.get(), nodes);
    const int chosen = random.choose(nodes, nameOf);
    return chosen < 0 ? nullptr : nodes[std::size_t(chosen)];
}

KnGroup* Stage::anyGroup(StepRandom& random) const
{
    std::vector<KnFieldContainer*> nodes;
    for (const KnNodePtr& root : roots())
        collect(root.get(), nodes);
    std::erase_if(nodes, [](KnFieldContainer* node) { return !dynamic_cast<KnGroup*>(node); });
    const int chosen = random.choose(nodes, nameOf);
    return chosen < 0 ? nullptr : dynamic_cast<KnGroup*>(nodes[std::size_t(chosen)]);
}

KnField* Stage::anyField(StepRandom& random) const
{
    KnFieldContainer* const node = anyNode(random);
    if (!node)
        return nullptr;
    const KnFieldData* const data = node->getContainerFieldData();
    return data->getField(node, random.below(data->getNum()));
}

void Stage::note(const QString& what)
{
    std::printf("    %s\n", qPrintable(what));
    std::fflush(stdout);
}
