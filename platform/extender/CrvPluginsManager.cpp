// SPDX-License-Identifier: BSD-3-Clause
#include "CrvPluginsManager.h"

#include "CrvBuiltInProfiles.h"
#include "CrvExtension.h"
#include "CrvPluginLibrary.h"
#include "CrvProfile.h"
#include "CrvProfileActivation.h"
#include "CrvProfileReader.h"
#include "CrvProfileResolution.h"
#include "CrvServices.h"
#include "CrvShell.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFileInfo>
#include <QUndoStack>

#include <algorithm>
#include <utility>

namespace {

CrvPluginsManager* instance = nullptr; // owned, until the application object goes away

using Profiles = std::vector<std::unique_ptr<CrvProfile>>;

} // namespace

struct CrvPluginsManager::Private {
    struct LoadedPlugin {
        CrvPlugin* plugin; // owned by the library's code, or by whoever had it adopted
        std::unique_ptr<CrvPluginLibrary> library; // null for an adopted one
    };

    explicit Private(CrvPluginsManager* manager)
        : q(manager)
    {
    }

    void startPlugin(CrvPlugin* plugin, std::unique_ptr<CrvPluginLibrary> library);
    void replaceProfiles(Profiles newProfiles);
    void applyActiveProfile();
    void announceProfile();
    void unloadPlugins();
    CrvProfileResolution* resolve();
    std::vector<CrvExtension*> wantedExtensions();

    CrvPluginsManager* const q;
    std::vector<LoadedPlugin> plugins; // those whose extensions are loaded
    Profiles ownedProfiles;
    std::list<CrvProfile*> profiles;
    CrvProfile* activeProfile = nullptr;
    std::unique_ptr<CrvProfileResolution> resolution; // of the active profile, made when asked for
    CrvProfileSetting noSetting; // of whatever the profile doesn't list

    CrvProfileActivation activation { [this] { return wantedExtensions(); } };
    bool profileChanged = false; // the signal is due
};

void CrvPluginsManager::Private::startPlugin(
    CrvPlugin* plugin, std::unique_ptr<CrvPluginLibrary> library)
{
    plugin->load();
    for (CrvExtension* extension : std::vector<CrvExtension*>(plugin->getExtensions()))
        extension->load();
    plugins.push_back({ plugin, std::move(library) });
    applyActiveProfile();
}

void CrvPluginsManager::Private::replaceProfiles(Profiles newProfiles)
{
    const auto sameName = [this](const std::unique_ptr<CrvProfile>& profile) {
        return activeProfile && profile->getName() == activeProfile->getName();
    };
    const auto kept = std::find_if(newProfiles.begin(), newProfiles.end(), sameName);
    activeProfile = (kept == newProfiles.end() ? newProfiles.front() : *kept).get();

    // The former ones go last, so that no slot is left with a pointer to one that is gone.
    const Profiles former = std::exchange(ownedProfiles, std::move(newProfiles));
    profiles.clear();
    for (const std::unique_ptr<CrvProfile>& profile : ownedProfiles)
        profiles.push_back(profile.get());
    profileChanged = true;
    // The profile selector reads the list when it is activated.
    activation.renewAll();
    Q_EMIT q->profilesChanged();
    applyActiveProfile();
}

void CrvPluginsManager::Private::applyActiveProfile()
{
    resolution.reset();
    if (activation.update())
        announceProfile();
}

void CrvPluginsManager::Private::announceProfile()
{
    if (std::exchange(profileChanged, false))
        Q_EMIT q->activeProfileChanged(activeProfile);
}

std::vector<CrvExtension*> CrvPluginsManager::Private::wantedExtensions()
{
    const CrvProfileResolution* const resolved = resolve();
    return resolved ? resolved->getTopExtensions() : std::vector<CrvExtension*>();
}

void CrvPluginsManager::Private::unloadPlugins()
{
    while (!plugins.empty()) {
        const LoadedPlugin last = std::move(plugins.back());
        plugins.pop_back();
        resolution.reset();
        const std::vector<CrvExtension*> extensions = last.plugin->getExtensions();
        std::for_each(extensions.rbegin(), extensions.rend(),
            [](CrvExtension* extension) { extension->unload(); });
        last.plugin->unload();
    }
    resolution.reset();
}

CrvProfileResolution* CrvPluginsManager::Private::resolve()
{
    if (!resolution && activeProfile)
        resolution = std::make_unique<CrvProfileResolution>(*activeProfile, q->getExtensions());
    return resolution.get();
}

CrvPluginsManager* CrvPluginsManager::getInstance()
{
    if (!instance) {
        // The services must outlive the manager, whose plug-ins use them to the last.
        CrvServices::getInstance();
        instance = new CrvPluginsManager;
        qAddPostRoutine([] { delete std::exchange(instance, nullptr); });
    }
    return instance;
}

CrvPluginsManager::CrvPluginsManager()
    : d(std::make_unique<Private>(this))
{
    d->replaceProfiles(builtInProfiles());
}

CrvPluginsManager::~CrvPluginsManager()
{
    if (!d->activation.hasActiveExtensions() || CrvShell::getInstance()) {
        unloadAll();
        return;
    }
    // Extensions take their docks out of the shell. Without it they can't be told any more.
    qWarning("CrvPluginsManager: the shell was destroyed before the plug-ins were unloaded");
    for (Private::LoadedPlugin& loaded : d->plugins)
        static_cast<void>(loaded.library.release());
}

CrvPlugin* CrvPluginsManager::loadPlugin(const QString& fileName, QString* error)
{
    // Its code keeps one plug-in object, which a second call would lose.
    const QString path = QFileInfo(fileName).canonicalFilePath();
    for (const Private::LoadedPlugin& loaded : d->plugins) {
        if (loaded.library && loaded.library->getFileName() == path) {
            if (error)
                *error = tr("%1: this plug-in is already loaded").arg(fileName);
            return nullptr;
        }
    }
    std::unique_ptr<CrvPluginLibrary> library = CrvPluginLibrary::open(fileName, error);
    if (!library)
        return nullptr;
    CrvPlugin* const plugin = library->getPlugin();
    d->startPlugin(plugin, std::move(library));
    return plugin;
}

void CrvPluginsManager::adoptPlugin(CrvPlugin* plugin)
{
    if (plugin)
        d->startPlugin(plugin, nullptr);
}

void CrvPluginsManager::unloadAll()
{
    if (d->activation.isBusy()) {
        qWarning("CrvPluginsManager: an extension can't unload the plug-ins while it is activated "
                 "or deactivated");
        return;
    }
    CrvServices* const services = CrvServices::getInstance();
    services->selectNode(nullptr);
    // The code of the commands goes away with the plug-ins.
    services->getUndoStack()->clear();
    d->activation.shutDown([this] { d->unloadPlugins(); });
    d->announceProfile();
}

std::vector<CrvExtension*> CrvPluginsManager::getExtensions() const
{
    std::vector<CrvExtension*> extensions;
    for (const Private::LoadedPlugin& loaded : d->plugins) {
        const std::vector<CrvExtension*>& more = loaded.plugin->getExtensions();
        extensions.insert(extensions.end(), more.begin(), more.end());
    }
    return extensions;
}

bool CrvPluginsManager::loadProfiles(const QString& fileName, QString* error)
{
    CrvProfileReader reader;
    Profiles profiles = reader.readFile(fileName);
    if (profiles.empty()) {
        if (error)
            *error = reader.errorText();
        return false;
    }
    d->replaceProfiles(std::move(profiles));
    return true;
}

void CrvPluginsManager::useBuiltInProfiles() { d->replaceProfiles(builtInProfiles()); }

const std::list<CrvProfile*>& CrvPluginsManager::getProfilesList() const { return d->profiles; }

CrvProfile* CrvPluginsManager::getActiveProfile() const { return d->activeProfile; }

void CrvPluginsManager::setActiveProfile(CrvProfile* profile)
{
    const bool known = !profile
        || std::find(d->profiles.begin(), d->profiles.end(), profile) != d->profiles.end();
    if (!known || profile == d->activeProfile)
        return;
    d->activeProfile = profile;
    d->profileChanged = true;
    d->applyActiveProfile();
}

CrvProfileSetting* CrvPluginsManager::getProfileSetting(const CrvExtension* extension) const
{
    const CrvProfileResolution* resolved = d->resolve();
    CrvProfileSetting* const setting = resolved ? resolved->getSetting(extension) : nullptr;
    return setting ? setting : &d->noSetting;
}
