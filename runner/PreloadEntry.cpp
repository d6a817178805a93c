// SPDX-License-Identifier: BSD-3-Clause
#include "ProgramInspector.h"

#include <QApplication>
#include <QByteArrayList>

#include <cstdio>
#include <cstdlib>
#include <utility>

#include <dlfcn.h>

// What happens in the program that `corvane --run` has become.

namespace {

bool applicationSeen = false;
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

void atEnd()
{
    if (!applicationSeen)
        complain("has ended without an application object of Qt 6, so there was nothing to show");
}

[[gnu::constructor]] void libraryLoaded()
{
    leavePreload();
    std::atexit(&atEnd);
}

void openInspector()
{
    if (!qobject_cast<QApplication*>(QCoreApplication::instance())) {
        complain("has no QApplication, so the inspector can't have a window in it");
        return;
    }
    inspector = new ProgramInspector;
    qAddPostRoutine([] { delete std::exchange(inspector, nullptr); });
}

/// Called by the constructor of the application object, which isn't complete yet.
void applicationMade()
{
    applicationSeen = true;
    QMetaObject::invokeMethod(QCoreApplication::instance(), &openInspector, Qt::QueuedConnection);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(applicationMade)
