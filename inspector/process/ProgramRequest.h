// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QStringList>

/// What `corvane --run` hands over to the library that it preloads into the program, by way of the
/// environment.
struct ProgramRequest {
    /// Puts it into the environment of this process, and so into that of the program.
    void leave() const;
    /// Takes it out again, so that nothing of it reaches what the program starts. Nothing is set if
    /// there is none.
    static ProgramRequest take();

    QStringList options; ///< of the command line, as they stood before `--run`
    int output = -1; ///< the caller's standard output; -1 if the program has it itself
    bool offscreen = false; ///< the platform was chosen here, since no display answers
};
