// SPDX-License-Identifier: BSD-3-Clause
#include "ProfileMenu.h"

#include "CrvPluginsManager.h"
#include "CrvProfile.h"
#include "SceneText.h"

#include <QActionGroup>

ProfileMenu::ProfileMenu(QWidget* parent)
    : QMenu(tr("&Profiles"), parent)
    , m_group(new QActionGroup(this))
{
    setObjectName(QStringLiteral("profileMenu"));
    const CrvPluginsManager* const manager = CrvPluginsManager::getInstance();
    connect(manager, &CrvPluginsManager::profilesChanged, this, &ProfileMenu::listProfiles);
    connect(
        manager, &CrvPluginsManager::activeProfileChanged, this, &ProfileMenu::checkActiveProfile);
    connect(m_group, &QActionGroup::triggered, this, &ProfileMenu::activate);
    listProfiles();
}

void ProfileMenu::listProfiles()
{
    clear();
    for (const CrvProfile* profile : CrvPluginsManager::getInstance()->getProfilesList()) {
        QAction* const action = addAction(toQString(profile->getName()));
        action->setObjectName(action->text());
        action->setCheckable(true);
        m_group->addAction(action);
    }
    checkActiveProfile();
}

void ProfileMenu::checkActiveProfile()
{
    const CrvPluginsManager* const manager = CrvPluginsManager::getInstance();
    qsizetype i = 0;
    for (const CrvProfile* profile : manager->getProfilesList()) {
        if (profile == manager->getActiveProfile() && i < m_group->actions().size())
            m_group->actions().at(i)->setChecked(true);
        ++i;
    }
}

void ProfileMenu::activate(QAction* action)
{
    CrvPluginsManager* const manager = CrvPluginsManager::getInstance();
    qsizetype i = 0;
    for (CrvProfile* profile : manager->getProfilesList()) {
        if (m_group->actions().indexOf(action) == i++) {
            manager->setActiveProfile(profile);
            return;
        }
    }
}
