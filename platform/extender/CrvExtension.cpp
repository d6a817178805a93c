// SPDX-License-Identifier: BSD-3-Clause
#include "CrvExtension.h"

#include "CrvPluginsManager.h"

CrvExtension::CrvExtension() = default;

CrvExtension::~CrvExtension() = default;

void CrvExtension::activate() { m_active = true; }

void CrvExtension::deactivate() { m_active = false; }

void CrvExtension::hide() { m_shown = false; }

void CrvExtension::load() { }

void CrvExtension::show() { m_shown = true; }

void CrvExtension::unload() { }

CrvProfileSetting* CrvExtension::getProfileSetting() const
{
    return CrvPluginsManager::getInstance()->getProfileSetting(this);
}
