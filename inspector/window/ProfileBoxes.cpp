// SPDX-License-Identifier: BSD-3-Clause
#include "ProfileBoxes.h"

#include "CrvPluginsManager.h"
#include "CrvProfile.h"

#include <QComboBox>
#include <QSignalBlocker>
#include <QToolBar>

#include <algorithm>

namespace {

bool listsProfiles(const QComboBox& box)
{
    const auto& profiles = CrvPluginsManager::getInstance()->getProfilesList();
    int row = 0;
    return box.count() == static_cast<int>(profiles.size())
        && std::all_of(profiles.begin(), profiles.end(), [&](const CrvProfile* profile) {
               return box.itemText(row++) == QString::fromLatin1(profile->getName().toLatin1());
           });
}

} // namespace

ProfileBoxes::ProfileBoxes(QObject* parent)
    : QObject(parent)
{
    connect(CrvPluginsManager::getInstance(), &CrvPluginsManager::activeProfileChanged, this,
        &ProfileBoxes::showActiveProfile);
}

void ProfileBoxes::follow(const QToolBar* toolBar)
{
    std::erase_if(m_boxes, [](const QPointer<QComboBox>& box) { return !box; });
    for (QComboBox* box : toolBar->findChildren<QComboBox*>()) {
        if (std::find(m_boxes.begin(), m_boxes.end(), box) == m_boxes.end())
            m_boxes.emplace_back(box);
    }
}

void ProfileBoxes::showActiveProfile()
{
    const CrvPluginsManager* const manager = CrvPluginsManager::getInstance();
    const auto& profiles = manager->getProfilesList();
    const auto active = std::find(profiles.begin(), profiles.end(), manager->getActiveProfile());
    if (active == profiles.end())
        return;
    for (const QPointer<QComboBox>& box : m_boxes) {
        if (!box || !listsProfiles(*box))
            continue;
        // Nobody has chosen here.
        const QSignalBlocker blocker(box);
        box->setCurrentIndex(static_cast<int>(std::distance(profiles.begin(), active)));
    }
}
