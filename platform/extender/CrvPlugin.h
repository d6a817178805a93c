// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KbString.h"

#include <vector>

class CrvExtension;

/// What a plug-in file's `loadPlugin` hands to the host: who it is, and which extensions it brings.
class CrvPlugin {
public:
    CrvPlugin() = default;
    CrvPlugin(const CrvPlugin&) = delete;
    CrvPlugin& operator=(const CrvPlugin&) = delete;

    /// Called by the host once, after `loadPlugin`. An override registers its extensions with
    /// `addExtension` and calls this one last.
    virtual void load();
    /// Called by the host once, before `unloadPlugin`, when the extensions have been unloaded. It
    /// forgets the registered extensions.
    virtual void unload();
    virtual ~CrvPlugin();

    /// The extension stays the plug-in's own. Null, and one that is registered already, is ignored.
    void addExtension(CrvExtension* extension);
    /// The registered extensions, in the order of their registration.
    const std::vector<CrvExtension*>& getExtensions() const { return m_extensions; }

    const KbString& getName() const { return m_name; }
    const KbString& getDescription() const { return m_description; }
    const KbString& getAuthor() const { return m_author; }
    const KbString& getVersion() const { return m_version; }

protected:
    KbString m_name;
    KbString m_description;
    KbString m_author;
    KbString m_version;

private:
    std::vector<CrvExtension*> m_extensions; // not owned
};

/// The two functions that a plug-in file exports, with unmangled names: the first makes the plug-in
/// object, the second destroys it.
using CrvLoadPluginFunction = CrvPlugin* (*)();
using CrvUnloadPluginFunction = void (*)();
