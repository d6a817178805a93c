// SPDX-License-Identifier: BSD-3-Clause
#include "InspectorSession.h"

#include "CrvNodeDetails.h"
#include "CrvPluginsManager.h"
#include "CrvServices.h"
#include "DefaultPlugin.h"
#include "EventFiber.h"
#include "Messages.h"
#include "NodeChoice.h"
#include "ProfileMemory.h"
#include "SceneRoots.h"
#include "WindowFamily.h"

#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QThread>
#include <QTimer>
#include <QUndoStack>

#include <utility>

namespace {

InspectorSession* instance = nullptr; // owned, until it is ended or the application object goes

// In milliseconds: what a person can follow.
constexpr int refreshInterval = 33;

int loopLevel() { return QThread::currentThread()->loopLevel(); }

// Those with a question wait in an event loop of their own.
bool endDialog(QWidget* widget)
{
    if (auto* const dialog = qobject_cast<QDialog*>(widget))
        dialog->reject();
    else if (widget->windowType() == Qt::Popup)
        widget->close();
    else
        return false;
    return true;
}

} // namespace

InspectorSession::InspectorSession(Memory memory)
    : m_settings(memory == Memory::None
            ? nullptr
            : std::make_unique<QSettings>(QStringLiteral("Orbel"), QStringLiteral("Corvane")))
    , m_window(m_settings.get(), MainWindow::Role::Guest)
    , m_profile(m_settings ? ProfileMemory::lastProfile(*m_settings) : nullptr)
{
    connect(&m_window, &MainWindow::closed, this, &InspectorSession::putAway);
    CrvPluginsManager* const manager = CrvPluginsManager::getInstance();
    if (!m_profile)
        m_profile = manager->getActiveProfile();
    manager->setActiveProfile(nullptr);
    // Without its editors it still shows a scene.
    QString error;
    if (!manager->loadPlugin(defaultPluginFile(), &error))
        complain(error);
}

InspectorSession::~InspectorSession()
{
    close();
    CrvPluginsManager* const manager = CrvPluginsManager::getInstance();
    manager->unloadAll();
    manager->setActiveProfile(m_profile);
}

InspectorSession* InspectorSession::getInstance() { return instance; }

InspectorSession* InspectorSession::make(Memory memory)
{
    // Made first, they end after the session.
    CrvPluginsManager::getInstance();
    instance = new InspectorSession(memory);
    qAddPostRoutine(destroy);
    return instance;
}

void InspectorSession::end()
{
    if (!instance)
        return;
    const bool hadDialogs = instance->endDialogs();
    const bool unwound = EventFiber::unwind();
    instance->close();
    CrvServices::getInstance()->getUndoStack()->clear();
    if (hadDialogs && !unwound)
        destroyBelow(loopLevel());
    else
        destroy();
}

void InspectorSession::destroy()
{
    qRemovePostRoutine(destroy);
    delete std::exchange(instance, nullptr);
}

// An editor that asked something in a dialog stands on the stack below the dialog's loop.
void InspectorSession::destroyBelow(int level)
{
    instance->m_ending = true;
    QTimer::singleShot(0, qApp, [level] {
        // It may have been opened again, or destroyed with the application object.
        if (!instance || !instance->m_ending)
            return;
        if (loopLevel() >= level)
            destroyBelow(level);
        else
            destroy();
    });
}

void InspectorSession::open(const std::vector<KnNodePtr>& roots)
{
    m_ending = false;
    if (!m_open) {
        m_open = true;
        CrvServices* const services = CrvServices::getInstance();
        services->setRefreshInterval(refreshInterval);
        services->setRoots(roots);
        CrvPluginsManager::getInstance()->setActiveProfile(m_profile);
        if (!m_window.returnPlaces() && m_settings)
            m_window.restoreLayout();
        NodeChoice::chooseFirst();
    }
    m_window.setWindowState(m_window.windowState() & ~Qt::WindowMinimized);
    m_window.show();
    m_window.raise();
    // Somebody who works in the program's own window goes on doing so.
    if (!m_window.testAttribute(Qt::WA_ShowWithoutActivating))
        m_window.activateWindow();
}

void InspectorSession::close()
{
    if (!m_open)
        return;
    endDialogs();
    EventFiber::unwind();
    m_window.close();
}

/// Whether there were any.
bool InspectorSession::endDialogs()
{
    std::vector<QPointer<QWidget>> family;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible() && isInFamily(widget, &m_window))
            family.emplace_back(widget);
    }
    bool any = false;
    for (const QPointer<QWidget>& widget : family)
        any = (widget && endDialog(widget)) || any;
    return any;
}

// In answer to the selection, a listener may select something else.
void InspectorSession::putAway()
{
    m_open = false;
    CrvServices* const services = CrvServices::getInstance();
    services->selectNode(nullptr);
    if (services->getSelectedNode())
        services->selectNode(nullptr);
    services->setRoots({});
    CrvNodeDetails::endAllWatches();
    CrvPluginsManager* const manager = CrvPluginsManager::getInstance();
    m_profile = manager->getActiveProfile();
    m_window.keepPlaces();
    manager->setActiveProfile(nullptr);
    services->setPaused(false);
    services->setRefreshInterval(0);
}

void InspectorSession::showRoots(const std::vector<KnNodePtr>& roots)
{
    if (!m_open)
        return;
    CrvServices* const services = CrvServices::getInstance();
    const KnFieldContainer* const selected = services->getSelectedNode();
    if (findRoot(services->getRoots(), selected) && !findRoot(roots, selected))
        services->selectNode(nullptr);
    const bool wasEmpty = services->getRoots().empty();
    services->setRoots(roots);
    if (wasEmpty)
        NodeChoice::chooseFirst();
}

bool InspectorSession::loadPlugin(const QString& fileName, QString* error)
{
    return CrvPluginsManager::getInstance()->loadPlugin(fileName, error) != nullptr;
}
