// SPDX-License-Identifier: BSD-3-Clause
#include "ProfileMemory.h"

#include "CrvPluginsManager.h"
#include "CrvProfile.h"
#include "CrvStrings.h"

#include <QSettings>

namespace {

QString settingsKey() { return QStringLiteral("window/profile"); }

} // namespace

ProfileMemory::ProfileMemory(QSettings* settings, QObject* parent)
    : QObject(parent)
{
    connect(CrvPluginsManager::getInstance(), &CrvPluginsManager::activeProfileChanged, this,
        [settings](const CrvProfile* profile) {
            // A guest has none while it is closed.
            if (profile)
                settings->setValue(settingsKey(), toQString(profile->getName()));
        });
}

CrvProfile* ProfileMemory::lastProfile(const QSettings& settings)
{
    const QString name = settings.value(settingsKey()).toString();
    for (CrvProfile* profile : CrvPluginsManager::getInstance()->getProfilesList()) {
        if (!name.isEmpty() && toQString(profile->getName()) == name)
            return profile;
    }
    return nullptr;
}

void ProfileMemory::chooseLast(const QSettings* settings)
{
    CrvProfile* const profile = settings ? lastProfile(*settings) : nullptr;
    if (profile)
        CrvPluginsManager::getInstance()->setActiveProfile(profile);
}
