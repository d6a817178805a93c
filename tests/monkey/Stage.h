// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "Hand.h"
#include "KnNodePtr.h"

#include <QSettings>
#include <QTemporaryDir>

#include <memory>
#include <vector>

class KnField;
class KnGroup;
class MainWindow;
class StepRandom;
class Startup;

/// What the monkey plays in: the program's window with the plug-in files loaded, on a copy of a
/// scene, in a folder of its own, which also holds the settings.
class Stage {
public:
    Stage();
    /// Unloads the plug-ins and takes the window away.
    ~Stage();
    Q_DISABLE_COPY_MOVE(Stage)

    /// The next start of the program, with the settings of the last one.
    void restart();
    /// Unloads all plug-ins and loads them anew, while the window stands.
    void reloadPlugins();

    /// Counts the times that the undo stack was emptied by one of these.
    int beginnings() const { return m_beginnings; }

    MainWindow& window() { return *m_window; }
    Hand& hand() { return m_hand; }
    /// In the folder: one of a few that a file may have, so that they meet again.
    QString fileName(StepRandom& random) const;

    /// Of the scene shown; none is null.
    const std::vector<KnNodePtr>& roots() const;
    /// A node of the scene; null if it has none.
    KnFieldContainer* anyNode(StepRandom& random) const;
    KnGroup* anyGroup(StepRandom& random) const;
    KnField* anyField(StepRandom& random) const;

    /// Tells what a step does, for a person who follows it.
    static void note(const QString& what);

private:
    void start();

    int m_beginnings = 0;
    QTemporaryDir m_folder;
    Hand m_hand;
    std::unique_ptr<QSettings> m_settings;
    std::unique_ptr<MainWindow> m_window;
    std::unique_ptr<Startup> m_startup; // goes before the window
};
