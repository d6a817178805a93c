// SPDX-License-Identifier: BSD-3-Clause
#include "CrvPlugin.h"

#include <algorithm>

void CrvPlugin::load() { }

void CrvPlugin::unload() { m_extensions.clear(); }

CrvPlugin::~CrvPlugin() = default;

void CrvPlugin::addExtension(CrvExtension* extension)
{
    const bool known
        = std::find(m_extensions.begin(), m_extensions.end(), extension) != m_extensions.end();
    if (extension && !known)
        m_extensions.push_back(extension);
}
