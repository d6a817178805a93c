// SPDX-License-Identifier: BSD-3-Clause
#include "CrvProfileResolution.h"

#include "CrvEditor.h"

#include <algorithm>

namespace {

bool isEditor(const CrvExtension* extension)
{
    return dynamic_cast<const CrvEditor*>(extension) != nullptr;
}

bool matches(const KbString& name, const CrvExtension* extension, bool atTop)
{
    static const KbString wildcard("*");
    if (name == wildcard)
        return isEditor(extension) != atTop;
    return extension->getName() == name && !(atTop && isEditor(extension));
}

} // namespace

CrvProfileResolution::CrvProfileResolution(
    const CrvProfile& profile, const std::vector<CrvExtension*>& extensions)
{
    for (const CrvProfileEntry& entry : profile.getEntries()) {
        for (CrvExtension* extension : extensions) {
            if (!matches(entry.extension, extension, true))
                continue;
            if (std::find(m_topExtensions.begin(), m_topExtensions.end(), extension)
                == m_topExtensions.end())
                m_topExtensions.push_back(extension);
            addChildren(makeSetting(extension), entry, extensions);
        }
    }
    m_followed.clear();
}

CrvProfileResolution::~CrvProfileResolution() = default;

CrvProfileSetting* CrvProfileResolution::getSetting(const CrvExtension* extension) const
{
    const auto found = m_settings.find(extension);
    return found == m_settings.end() ? nullptr : found->second.get();
}

CrvProfileSetting* CrvProfileResolution::makeSetting(CrvExtension* extension)
{
    std::unique_ptr<CrvProfileSetting>& setting = m_settings[extension];
    if (!setting)
        setting = std::make_unique<CrvProfileSetting>();
    return setting.get();
}

void CrvProfileResolution::addChildren(CrvProfileSetting* setting, const CrvProfileEntry& entry,
    const std::vector<CrvExtension*>& extensions)
{
    if (!m_followed.insert({ setting, &entry }).second)
        return;
    for (const CrvProfileEntry& child : entry.children) {
        for (CrvExtension* extension : extensions) {
            if (!matches(child.extension, extension, false))
                continue;
            CrvProfileSetting* childSetting = makeSetting(extension);
            setting->setControlledExtension(extension, childSetting);
            addChildren(childSetting, child, extensions);
        }
    }
}
