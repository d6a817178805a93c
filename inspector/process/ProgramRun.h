// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QStringList>

/// `corvane [OPTIONS] --run PROGRAM [ARGUMENTS]`: puts an unmodified program of Qt's in the place
/// of this one, with the inspector in it.
class ProgramRun {
public:
    ProgramRun() = delete;

    /// What becomes of the program's standard output.
    enum class Output {
        Own, ///< it has that of the caller
        Error, ///< it goes to the standard error stream; the caller's is for answers
    };

    /// Where `--run` stands among the arguments; -1 if it doesn't. What follows is the program's.
    static qsizetype indexIn(const QStringList& arguments);
    /// `command` is the program with its arguments, up to a null; `options` are those for the
    /// inspector. Doesn't return unless the program can't be started: the process becomes the
    /// program, so exit status, signals and terminal are the program's own. The result is that of a
    /// shell then: 126 for a file that can't be run, 127 for none, and 2 if no program was named.
    static int start(char** command, const QStringList& options, Output output);
};
