// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvPlugin.h"

#include <QLibrary>

#include <memory>

/// A plug-in file that is loaded, with the plug-in object that its `loadPlugin` gave. Destroying it
/// calls `unloadPlugin` and lets the file go.
class CrvPluginLibrary {
public:
    /// Null for a file that is refused; `error` says which file and why.
    static std::unique_ptr<CrvPluginLibrary> open(const QString& fileName, QString* error);
    ~CrvPluginLibrary();
    CrvPluginLibrary(const CrvPluginLibrary&) = delete;
    CrvPluginLibrary& operator=(const CrvPluginLibrary&) = delete;

    /// Owned by the file's own code.
    CrvPlugin* getPlugin() const { return m_plugin; }
    /// The file, under a name that is the same for all ways to write it.
    QString getFileName() const { return m_library.fileName(); }

private:
    explicit CrvPluginLibrary(const QString& fileName);

    /// Gives the reason of a refusal, or an empty text.
    QString load();

    QLibrary m_library;
    CrvPlugin* m_plugin = nullptr; // from loadPlugin to unloadPlugin
    CrvUnloadPluginFunction m_unloadPlugin = nullptr;
};
