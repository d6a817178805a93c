// SPDX-License-Identifier: BSD-3-Clause
#include "CrvProfileSelectorExtension.h"

#include "CrvPluginsManager.h"
#include "CrvProfile.h"
#include "CrvShell.h"

#include <QComboBox>
#include <QToolBar>

CrvProfileSelectorExtension::CrvProfileSelectorExtension()
{
    m_name = "Profile Selector";
    m_description = "A toolbar to select the active profile.";
    m_author = "Orbel";
    m_version = "1.0.0";
}

CrvProfileSelectorExtension::~CrvProfileSelectorExtension()
{
    if (m_toolBar)
        CrvProfileSelectorExtension::unload();
}

void CrvProfileSelectorExtension::load()
{
    m_toolBar = new QToolBar;
    m_toolBar->setWindowTitle(QStringLiteral("Profile Selector"));
    // A main window keeps and restores its tool bars by object name.
    m_toolBar->setObjectName(QStringLiteral("Profile Selector"));
    m_comboBox = new QComboBox(m_toolBar);
    m_comboBox->setObjectName(QStringLiteral("m_comboBox"));
    m_comboBox->setToolTip(QStringLiteral("Select the active profile."));
    // Otherwise names longer than those of the first activation would be cut off.
    m_comboBox->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_toolBar->addWidget(m_comboBox);
}

void CrvProfileSelectorExtension::unload()
{
    delete m_comboBox;
    m_comboBox = nullptr;
    delete m_toolBar;
    m_toolBar = nullptr;
}

void CrvProfileSelectorExtension::activate()
{
    const CrvPluginsManager* const manager = CrvPluginsManager::getInstance();
    const CrvProfile* const activeProfile = manager->getActiveProfile();
    m_comboBox->clear();
    int position = 0;
    int activePosition = -1;
    for (const CrvProfile* profile : manager->getProfilesList()) {
        // Names are shown in Latin-1, whatever the list's source was written in.
        m_comboBox->addItem(QString::fromLatin1(profile->getName().toLatin1()));
        if (profile == activeProfile)
            activePosition = position;
        ++position;
    }
    m_comboBox->setCurrentIndex(activePosition);
    connect(m_comboBox, &QComboBox::currentIndexChanged, this,
        &CrvProfileSelectorExtension::s_currentIndexChanged);
    CrvShell::getInstance()->addToolBar(m_toolBar, Qt::TopToolBarArea);
    CrvShell::getInstance()->registerExtension(this, 1);
    show();
    CrvExtension::activate();
}

void CrvProfileSelectorExtension::deactivate()
{
    CrvExtension::deactivate();
    disconnect(m_comboBox, &QComboBox::currentIndexChanged, this,
        &CrvProfileSelectorExtension::s_currentIndexChanged);
    CrvShell::getInstance()->removeToolBar(m_toolBar);
    CrvShell::getInstance()->unregisterExtension(this);
}

void CrvProfileSelectorExtension::show()
{
    CrvExtension::show();
    m_toolBar->show();
}

void CrvProfileSelectorExtension::hide()
{
    CrvExtension::hide();
    m_toolBar->hide();
}

void CrvProfileSelectorExtension::s_currentIndexChanged(int index)
{
    int position = 0;
    for (CrvProfile* profile : CrvPluginsManager::getInstance()->getProfilesList()) {
        if (position == index) {
            // This may deactivate and activate the extension and change the host's list, so the
            // loop ends here.
            CrvPluginsManager::getInstance()->setActiveProfile(profile);
            return;
        }
        ++position;
    }
}
