// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KbString.h"

#include <map>
#include <memory>
#include <vector>

class CrvExtension;

/// What a profile says of one extension: which other extensions it places under it.
class CrvProfileSetting {
public:
    /// Ordered by pointer. The settings are owned by the plug-in manager and last until the active
    /// profile or the set of plug-ins changes.
    const std::map<CrvExtension*, CrvProfileSetting*>& getControlledExtensions() const
    {
        return m_controlled;
    }
    void setControlledExtension(CrvExtension* extension, CrvProfileSetting* setting)
    {
        m_controlled[extension] = setting;
    }

private:
    std::map<CrvExtension*, CrvProfileSetting*> m_controlled;
};

/// One entry of a profile's tree: an extension by name, and what it controls.
struct CrvProfileEntry {
    KbString extension;
    std::vector<CrvProfileEntry> children;
};

/// A named choice of extensions. Entries name extensions, so that a profile exists before the
/// plug-ins are loaded; the plug-in manager turns names into extensions.
class CrvProfile {
public:
    CrvProfile(const KbString& name, std::vector<CrvProfileEntry> entries);
    CrvProfile(const CrvProfile&) = delete;
    CrvProfile& operator=(const CrvProfile&) = delete;
    ~CrvProfile();

    KbString getName() const { return m_name; }
    const std::vector<CrvProfileEntry>& getEntries() const { return m_entries; }

private:
    KbString m_name;
    std::vector<CrvProfileEntry> m_entries;
};
