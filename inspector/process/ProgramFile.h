// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QByteArray>
#include <QString>

/// What a file says about the program in it, before it is started.
namespace ProgramFile {

/// The file that a shell would start for this name. Empty if there is none.
QByteArray find(const QByteArray& name);
/// Why the inspector certainly can't get into the program in a file; empty if it may. A program
/// that isn't linked with Qt may still load it later, so that is no reason.
QString objection(const QByteArray& file);
/// Why a file that is there couldn't be started, as far as that is plainer than the system's own
/// words.
QString startError(const QByteArray& file, int error);

} // namespace ProgramFile
