// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QCoreApplication>
#include <QString>

class CommandLine;
class MainWindow;

/// Applies a command line to a fresh window. Plug-ins stay loaded while it lives.
class Startup {
    Q_DECLARE_TR_FUNCTIONS(Startup)
public:
    /// `window` outlives this object.
    explicit Startup(MainWindow& window);
    Startup(const Startup&) = delete;
    Startup& operator=(const Startup&) = delete;
    /// Unloads the plug-ins.
    ~Startup();

    /// Profiles, plug-ins, scene and selection, in this order. False as soon as one of them fails,
    /// and `errorText` says why.
    bool applyCommandLine(const CommandLine& commandLine);
    const QString& errorText() const { return m_error; }

private:
    bool chooseProfile(const CommandLine& commandLine);
    bool loadPlugins(const CommandLine& commandLine);
    bool openScene(const CommandLine& commandLine);
    bool select(const CommandLine& commandLine);
    bool fail(const QString& error);

    MainWindow& m_window;
    QString m_error;
};
