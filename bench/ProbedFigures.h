// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <iosfwd>
#include <string>

/// The variable of the environment that says into which file the preloaded probe writes.
constexpr const char* probedFile = "CORVANE_PROBED_FILE";

/// What it took to look at one object for the first time.
struct OpenedObject {
    double time = 0; ///< in milliseconds
    int fields = 0;
    std::string className;
};

/// What the probe in a program has found there; times are in milliseconds.
struct ProbedFigures {
    int objects = 0;
    int fields = 0;
    int properties = 0; ///< that were read for `bare`
    double bare = 0; ///< reading the properties of all objects
    double first = 0; ///< the nodes, fields and texts of all objects
    double again = 0; ///< the same with fresh nodes, when all classes are known
    OpenedObject largest; ///< the one with the most fields
    OpenedObject slowest;
};

std::ostream& operator<<(std::ostream& stream, const ProbedFigures& figures);
std::istream& operator>>(std::istream& stream, ProbedFigures& figures);
