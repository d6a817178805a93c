// SPDX-License-Identifier: BSD-3-Clause
#include "ProbedFigures.h"

#include <istream>
#include <ostream>

namespace {

/// The name comes last and has a line to its end, since it may hold blanks.
std::ostream& operator<<(std::ostream& stream, const OpenedObject& object)
{
    return stream << object.time << ' ' << object.fields << ' ' << object.className << '\n';
}

std::istream& operator>>(std::istream& stream, OpenedObject& object)
{
    stream >> object.time >> object.fields >> std::ws;
    return std::getline(stream, object.className);
}

} // namespace

std::ostream& operator<<(std::ostream& stream, const ProbedFigures& figures)
{
    return stream << figures.objects << ' ' << figures.fields << ' ' << figures.properties << ' '
                  << figures.bare << ' ' << figures.first << ' ' << figures.again << '\n'
                  << figures.largest << figures.slowest;
}

std::istream& operator>>(std::istream& stream, ProbedFigures& figures)
{
    return stream >> figures.objects >> figures.fields >> figures.properties >> figures.bare
        >> figures.first >> figures.again >> figures.largest >> figures.slowest;
}
