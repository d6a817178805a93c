// SPDX-License-Identifier: BSD-3-Clause
#include "LooseObjects.h"
#include "OwnObjects.h"
#include "ProgramInspector.h"
#include "ProgramRoots.h"
#include "ProgramSession.h"
#include "ProgramStart.h"

#include <QApplication>
#include <QByteArrayList>

#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <utility>

#include <dlfcn.h>
#include <sys/resource.h>
#include <unistd.h>

// What happens in the program that `corvane --run` has become.

namespace {

constexpr int refused = 2; // the status without an answer

pid_t loadingProcess = -1;
bool applicationSeen = false;
bool answerWaits = false;
const ProgramSession* session = nullptr; // lives as long as the process
ProgramStart* programStart = nullptr; // until the program has settled, or the application ends
ProgramInspector* inspector = nullptr; // goes with the application object

void complain(const char* what)
{
    std::fprintf(stderr, "corvane: %s %s\n", program_invocation_short_name, what);
}

/// Takes this library out of what the programs that this one starts preload.
void leavePreload()
{
    Dl_info own = {};
    const char* const preload = std::getenv("LD_PRELOAD");
    if (!preload || dladdr(&applicationSeen, &own) == 0)
        return;
    QByteArrayList rest;
    for (const QByteArray& name : QByteArray(preload).replace(' ', ':').split(':')) {
        if (!name.isEmpty() && name != own.dli_fname)
            rest += name;
    }
    if (rest.isEmpty())
        unsetenv("LD_PRELOAD");
    else
        setenv("LD_PRELOAD", rest.join(':').constData(), 1);
}

/// What the program has written to its own streams is kept.
[[noreturn]] void endRefused()
{
    std::cout.flush();
    std::fflush(nullptr);
    std::_Exit(refused);
}

/// One of them may have been the program, as with a script.
bool hadChildren()
{
    rusage usage = {};
    return getrusage(RUSAGE_CHILDREN, &usage) == 0 && usage.ru_maxrss > 0;
}

void atEnd()
{
    // Neither a process that the program has forked, nor a helper of a script that starts it.
    if (getpid() != loadingProcess || (!applicationSeen && !session->isFirstProcess()))
        return;
    if (!applicationSeen && hadChildren())
        return;
    if (!applicationSeen)
        complain("has ended without an application object of Qt 6, so there was nothing to show");
    else if (answerWaits)
        complain("has ended before it could be looked into");
    if (answerWaits)
        endRefused();
}

[[gnu::constructor]] void libraryLoaded()
{
    ProgramStart::begin();
    loadingProcess = getpid();
    ObjectRegister::start();
    session = new ProgramSession;
    answerWaits = session->endsProgram();
    std::atexit(&atEnd);
}

ProgramSession::Roots nodesOfProgram()
{
    static auto* const loose = new LooseObjects;
    static const KnNodePtr held(loose);
    loose->update(ObjectRegister::Look::All);
    return rootNodes(programRoots(OwnObjects()), loose);
}

void openInspector()
{
    answerWaits = false;
    if (session->endsProgram() && !session->needsWindow())
        session->answer(&nodesOfProgram);
    inspector = new ProgramInspector(*session);
    if (session->endsProgram())
        session->answer(&nodesOfProgram);
}

void waitForProgram()
{
    if (session->needsWindow() && !qobject_cast<QApplication*>(QCoreApplication::instance())) {
        complain("has no QApplication, so the inspector can't have a window in it");
        if (session->endsProgram())
            endRefused();
        ObjectRegister::stop();
        return;
    }
    programStart = new ProgramStart(session->after());
    QObject::connect(programStart, &ProgramStart::settled, programStart, [] {
        std::exchange(programStart, nullptr)->deleteLater();
        openInspector();
    });
}

void applicationEnds()
{
    delete std::exchange(programStart, nullptr);
    delete std::exchange(inspector, nullptr);
}

/// Called by the constructor of the application object, which isn't complete yet.
void applicationMade()
{
    applicationSeen = true;
    // What runs before Qt may become another program yet, or start it, as scripts do.
    leavePreload();
    session->applicationMade();
    qAddPostRoutine(&applicationEnds);
    QMetaObject::invokeMethod(QCoreApplication::instance(), &waitForProgram, Qt::QueuedConnection);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(applicationMade)
