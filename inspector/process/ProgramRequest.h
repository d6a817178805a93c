// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QStringList>

/// What `corvane --run` hands over to the library that it preloads into the program, by way of the
/// environment.
struct ProgramRequest {
    /// Puts it into the environment of this process, and so into that of the program.
    void leave() const;
    /// Nothing is set if there is none. It stays where it is, since the process may become another
    /// program yet, as that of a script's does.
    static ProgramRequest read();
    /// Takes it out, so that nothing of it reaches what the program starts.
    void remove() const;

    QStringList options; ///< of the command line, as they stood before `--run`
    qint64 process = -1; ///< that was started
    int output = -1; ///< the caller's standard output; -1 if the program has it itself
    bool offscreen = false; ///< the platform was chosen here, since no display answers
};
