// SPDX-License-Identifier: BSD-3-Clause
#include "ProgramRun.h"

#include "DisplayCheck.h"
#include "Messages.h"
#include "OwnFolder.h"
#include "ProgramFile.h"
#include "ProgramRequest.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <cerrno>

#include <unistd.h>

namespace {

enum Status { UsageError = 2, CannotRun = 126, NotFound = 127 };

// The dynamic linker parts the names of libraries by these.
const QLatin1String separators(" :");

QString tr(const char* text) { return QCoreApplication::translate("ProgramRun", text); }

int fail(Status status, const QString& error)
{
    complainToTerminal(QStringLiteral("corvane: ") + error);
    return status;
}

bool holdsSeparator(const QString& path)
{
    return path.contains(separators[0]) || path.contains(separators[1]);
}

/// Answers need no display.
void handOver(const QStringList& options, ProgramRun::Output output)
{
    ProgramRequest request;
    request.options = options;
    request.process = getpid();
    if (output == ProgramRun::Output::Error) {
        request.output = dup(STDOUT_FILENO);
        dup2(STDERR_FILENO, STDOUT_FILENO);
        request.offscreen = !displayAnswers(qEnvironmentVariable("QT_QPA_PLATFORM"));
        if (request.offscreen)
            qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    request.leave();
}

} // namespace

qsizetype ProgramRun::indexIn(const QStringList& arguments)
{
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        if (arguments[i] == QLatin1String("--run") || arguments[i] == QLatin1String("-run"))
            return i;
    }
    return -1;
}

int ProgramRun::start(char** command, const QStringList& options, Output output)
{
    if (!*command)
        return fail(UsageError, tr("--run needs the name of a program"));
    const QString library = ownFile(QStringLiteral(CORVANE_RUN_FILE));
    if (!QFileInfo::exists(library))
        return fail(UsageError, tr("%1 is missing").arg(library));
    if (holdsSeparator(library))
        return fail(UsageError,
            tr("a library can't be preloaded from a folder with a blank or a colon in its name: %1")
                .arg(library));
    const QString name = QFile::decodeName(*command);
    const QByteArray file = ProgramFile::find(*command);
    if (file.isEmpty())
        return fail(NotFound, tr("%1: there is no such program").arg(name));
    const QString objection = ProgramFile::objection(file);
    if (!objection.isEmpty())
        return fail(CannotRun, QStringLiteral("%1: %2").arg(name, objection));
    handOver(options, output);
    // What the caller preloads stays, and in front: a sanitizer, say, wants to be the first.
    const QByteArray callers = qgetenv("LD_PRELOAD");
    qputenv("LD_PRELOAD",
        callers.isEmpty() ? QFile::encodeName(library)
                          : callers + ':' + QFile::encodeName(library));
    execvp(*command, command);
    const int error = errno;
    return fail(
        CannotRun, QStringLiteral("%1: %2").arg(name, ProgramFile::startError(file, error)));
}
