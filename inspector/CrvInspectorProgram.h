// SPDX-License-Identifier: BSD-3-Clause
#pragma once

/// The program `corvane`, all of it.
class CrvInspectorProgram {
public:
    /// Makes the application object, opens what the command line names and runs the event loop, or
    /// answers a question, runs a script or draws a picture without one. The result is the exit
    /// status of the process.
    static int run(int argc, char** argv);
};
