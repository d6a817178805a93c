// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QTemporaryDir>

#include <string>
#include <vector>

#include <sys/types.h>

/// How to start a process.
struct Command {
    std::vector<std::string> words; ///< the program's file and its arguments
    std::string preload; ///< libraries, with colons between
};

/// In milliseconds.
struct RunCost {
    double clock = 0;
    double processor = 0;
};

/// A process that runs offscreen, as at its first start by a new user, and prints nothing. It is
/// killed with this object or this process, and when it takes minutes.
class ProgramRun {
public:
    explicit ProgramRun(const Command& command);
    ~ProgramRun();
    Q_DISABLE_COPY_MOVE(ProgramRun)

    /// Waits for the end; what it took from the start on. Ends this process if the other one fails.
    RunCost finish();

    // What can be asked while it runs; if it has ended, so does this process.

    /// Of all its threads until now, in milliseconds.
    double processorTime() const;
    /// How often its threads have gone to sleep and so were woken up.
    long wakeUps() const;
    /// Whether a file whose name holds this text is loaded in it.
    bool hasLoaded(const std::string& name) const;

    /// A file in its home, whose name it has in its environment as CORVANE_PROBED_FILE.
    std::string probedPath() const;

private:
    [[noreturn]] void become(const Command& command) const;
    void expectLife() const;

    const QTemporaryDir m_home;
    const std::string m_name;
    const double m_start;
    pid_t m_process; // -1 once it has ended
};
