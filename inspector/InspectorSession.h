// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnNodePtr.h"
#include "MainWindow.h"

#include <QSettings>

#include <memory>
#include <vector>

class CrvProfile;

/// A guest's window with its plug-ins, from the first time that it is wanted to the end. While it
/// is closed, no extension is active, nothing is selected and there are no roots, so that no sensor
/// is attached.
class InspectorSession : public QObject {
    Q_OBJECT
public:
    /// What a person's settings mean to it.
    enum class Memory {
        Kept, ///< layout and profile are those of last time
        None, ///< as for somebody new, and nothing is kept
    };

    /// Null if there is none. It goes with the application object at the latest.
    static InspectorSession* getInstance();
    /// Loads the default extensions, or says on `std::cerr` why it can't. Called while there is an
    /// application object, no session and no shell.
    static InspectorSession* make(Memory memory = Memory::Kept);
    /// Closes the window, unloads the plug-ins and destroys the session, if there is one. Below a
    /// dialog of the window that can't be unwound from here, all but the closing comes later, when
    /// the dialog has returned.
    static void end();

    void open(const std::vector<KnNodePtr>& roots);
    void close();
    bool isOpen() const { return m_open; }
    /// Ignored while it is closed.
    void showRoots(const std::vector<KnNodePtr>& roots);
    /// Beside those that are loaded. False if the file is refused, and `error` says why.
    bool loadPlugin(const QString& fileName, QString* error);
    MainWindow& window() { return m_window; }

    Q_DISABLE_COPY_MOVE(InspectorSession)

private:
    explicit InspectorSession(Memory memory);
    ~InspectorSession() override;

    static void destroy();
    static void destroyBelow(int level);
    bool endDialogs();
    void putAway();

    const std::unique_ptr<QSettings> m_settings; // null for Memory::None
    MainWindow m_window;
    CrvProfile* m_profile; // the manager's; active while the window is open
    bool m_open = false;
    bool m_ending = false; // destroyed as soon as its dialogs have returned
};
