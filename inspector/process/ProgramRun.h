// SPDX-License-Identifier: BSD-3-Clause
#pragma once

/// `corvane --run PROGRAM [ARGUMENTS]`: puts an unmodified program of Qt's in the place of this
/// one, with the inspector in it.
class ProgramRun {
public:
    ProgramRun() = delete;

    /// Whether the command line asks for it; `--run` comes first, and all that follows is the
    /// program's own.
    static bool isWanted(int argc, char** argv);
    /// Doesn't return unless the program can't be started: the process becomes the program, so
    /// exit status, signals and terminal are the program's own. The result is that of a shell then:
    /// 126 for a file that can't be run, 127 for none, and 2 if no program was named.
    static int start(char** argv);
};
