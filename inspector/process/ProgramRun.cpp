// SPDX-License-Identifier: BSD-3-Clause
#include "ProgramRun.h"

#include "Messages.h"
#include "OwnFolder.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstring>

#include <unistd.h>

namespace {

enum Status { UsageError = 2, CannotRun = 126, NotFound = 127 };

// The dynamic linker parts the names of libraries by these.
const QLatin1String separators(" :");

int fail(Status status, const QString& error)
{
    complainToTerminal(QStringLiteral("corvane: ") + error);
    return status;
}

bool holdsSeparator(const QString& path)
{
    return path.contains(separators[0]) || path.contains(separators[1]);
}

} // namespace

bool ProgramRun::isWanted(int argc, char** argv)
{
    return argc > 1 && (std::strcmp(argv[1], "--run") == 0 || std::strcmp(argv[1], "-run") == 0);
}

int ProgramRun::start(char** argv)
{
    char** const command = argv + 2;
    if (!*command)
        return fail(UsageError,
            QCoreApplication::translate("ProgramRun", "--run needs the name of a program"));
    const QString library = ownFile(QStringLiteral(CORVANE_RUN_FILE));
    if (!QFileInfo::exists(library))
        return fail(
            UsageError, QCoreApplication::translate("ProgramRun", "%1 is missing").arg(library));
    if (holdsSeparator(library))
        return fail(UsageError,
            QCoreApplication::translate("ProgramRun",
                "a library can't be preloaded from a folder with a blank or a colon "
                "in its name: %1")
                .arg(library));
    // What the caller preloads stays, behind ours.
    QByteArray preload = QFile::encodeName(library);
    const QByteArray callers = qgetenv("LD_PRELOAD");
    if (!callers.isEmpty())
        preload += ':' + callers;
    qputenv("LD_PRELOAD", preload);
    execvp(*command, command);
    const int error = errno;
    return fail(error == ENOENT ? NotFound : CannotRun,
        QStringLiteral("%1: %2").arg(
            QFile::decodeName(*command), QString::fromLocal8Bit(std::strerror(error))));
}
