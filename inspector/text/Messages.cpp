// SPDX-License-Identifier: BSD-3-Clause
#include "Messages.h"

#include <QString>

#include <cstdio>
#include <iostream>
#include <string>

namespace {

std::string oneLine(const QString& line) { return (line + QLatin1Char('\n')).toStdString(); }

// Character by character: who captures the stream gathers single characters into lines and drops
// the line end, but takes a block as it stands, and would show a message and an empty one behind
// it.
void writeTo(std::ostream& stream, const QString& line)
{
    for (const char c : oneLine(line))
        stream.put(c);
    stream.flush();
}

void writeTo(std::FILE* stream, const QString& line)
{
    std::fputs(oneLine(line).c_str(), stream);
    std::fflush(stream);
}

} // namespace

void say(const QString& line) { writeTo(std::cout, line); }

void complain(const QString& line) { writeTo(std::cerr, line); }

void sayToTerminal(const QString& line) { writeTo(stdout, line); }

void complainToTerminal(const QString& line) { writeTo(stderr, line); }
