// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvProfile.h"

#include <set>
#include <utility>

/// What a profile means for the extensions at hand: its names turned into extensions. A name that
/// no extension has stands for nothing, one that several have stands for all of them. The name "*"
/// stands, at the top, for every extension that isn't an editor, and below another extension
/// for every editor.
class CrvProfileResolution {
public:
    CrvProfileResolution(const CrvProfile& profile, const std::vector<CrvExtension*>& extensions);
    ~CrvProfileResolution();

    /// What the host activates, in the order of the profile, each once. Editors are never among
    /// them: a dock activates its editor.
    const std::vector<CrvExtension*>& getTopExtensions() const { return m_topExtensions; }
    /// Null for an extension that the profile doesn't list. One that is listed in several places
    /// controls what is below all of them.
    CrvProfileSetting* getSetting(const CrvExtension* extension) const;

private:
    CrvProfileSetting* makeSetting(CrvExtension* extension);
    void addChildren(CrvProfileSetting* setting, const CrvProfileEntry& entry,
        const std::vector<CrvExtension*>& extensions);

    std::vector<CrvExtension*> m_topExtensions; // not owned
    std::map<const CrvExtension*, std::unique_ptr<CrvProfileSetting>> m_settings;
    // Which entries were followed for which settings. Without it, names that match many extensions,
    // a few levels deep, would take for ever.
    std::set<std::pair<const CrvProfileSetting*, const CrvProfileEntry*>> m_followed;
};
