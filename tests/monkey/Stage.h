// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "Hand.h"
#include "KnNodePtr.h"

#include <QSettings>
#include <QTemporaryDir>

#include <memory>
#include <vector>

class CrvInspector;
class KnField;
class KnGroup;
class MainWindow;
class StepRandom;
class Startup;

/// What the monkey plays in: a window of the inspector with the plug-in files loaded, on a scene
/// with all field types, in a folder of its own, which also holds the settings.
class Stage {
public:
    enum class Role {
        Program, ///< the inspector as a program, on a copy of the scene's file
        Guest, ///< in a program that has the scene, and this process is that program
    };

    explicit Stage(Role role);
    /// Unloads the plug-ins and takes the window away.
    ~Stage();
    Q_DISABLE_COPY_MOVE(Stage)

    Role role() const { return m_role; }
    /// A fresh scene in the same window, and beside it another root, which may be null; the undo
    /// stack is empty then. For a guest.
    void replaceScene(KnFieldContainer* furtherRoot);
    /// The next start of the program, with the settings of the last one; nothing once the window
    /// is to be kept.
    void restart();
    void keepWindow() { m_isKept = true; }
    /// Unloads all plug-ins and loads them anew, while the window stands; nothing for a guest,
    /// which has them as long as it lives.
    void reloadPlugins();
    /// After the person has closed the window: the next start of the program, or what the key of
    /// the program would do that the guest is in.
    void reopen();

    /// Counts the times that one of these has emptied the undo stack.
    int beginnings() const { return m_beginnings; }

    MainWindow& window();
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
    void startProgram();
    void startGuest();

    const Role m_role;
    int m_beginnings = 0;
    bool m_isKept = false;
    QTemporaryDir m_folder;
    Hand m_hand;
    std::unique_ptr<QSettings> m_settings;
    std::unique_ptr<MainWindow> m_window;
    std::unique_ptr<Startup> m_startup; // goes before the window
    std::vector<KnNodePtr> m_scene; // the guest's
    std::unique_ptr<CrvInspector> m_inspector; // the guest
};
