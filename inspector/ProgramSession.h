// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnNodePtr.h"

#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class CommandLine;
struct ProgramRequest;

/// What `corvane --run` was asked to do, from within the program that it has started: for the
/// library that is preloaded there.
class ProgramSession {
public:
    using Roots = std::vector<KnNodePtr>;

    /// Reads what was handed over. Made before the program does anything, since names of files are
    /// seen from the folder in which it was started.
    ProgramSession();
    ProgramSession(const ProgramSession&) = delete;
    ProgramSession& operator=(const ProgramSession&) = delete;
    ~ProgramSession();

    /// Whether this is the process that was started, and not one that it has started itself.
    bool isFirstProcess() const;
    /// Takes what was handed over out of the environment. To be called when the application object
    /// has found its platform.
    void applicationMade() const;
    /// Seconds from the program's start until it is to be looked into; none if it is to settle.
    std::optional<double> after() const;
    /// Whether the program ends with the answer, so that nobody sees a window.
    bool endsProgram() const;
    /// Whether the answer takes a window, and so a QApplication.
    bool needsWindow() const;

    /// Has the files in memory that the inspector's window is made of; what they do comes later.
    static void loadFiles();
    /// To be called before the inspector is shown for the first time: it opens without taking the
    /// focus, and for an answer as it would for somebody new.
    void prepareWindow() const;
    /// Selects what was asked for among what the inspector shows; says on the standard error stream
    /// why it can't, and is false then.
    bool select() const;
    /// Prints what was asked for, or draws the picture of the inspector's window, and ends the
    /// process at once. The program doesn't get to save or to ask anything. `roots` is called for
    /// each step, since an object may come or go with any of them.
    [[noreturn]] void answer(const std::function<Roots()>& roots) const;

private:
    bool runSteps(const std::function<Roots()>& roots) const;
    bool takePicture() const;

    const std::unique_ptr<const ProgramRequest> m_request;
    const std::unique_ptr<CommandLine> m_commandLine;
    QString m_pictureFile; // absolute
};
