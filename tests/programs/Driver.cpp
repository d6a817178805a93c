// SPDX-License-Identifier: BSD-3-Clause
#include "InspectorInput.h"
#include "ObjectWalk.h"
#include "PictureEdits.h"
#include "ProgramPicture.h"
#include "ProgramStart.h"
#include "PropertyEdits.h"
#include "PropertySnapshot.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTimer>

#include <cstdio>
#include <cstdlib>

// Preloaded into a program that is inspected: waits for the inspector's window, works in it as a
// person would, prints what came of it, and ends the program. CORVANE_DRIVE says what to do; "draw"
// has the name of a file behind it.

namespace {

enum Status { Passed = 0, Failed = 1, NoWindow = 2, UnknownTask = 3 };

constexpr char drawing[] = "draw ";

const QByteArray& task()
{
    static const QByteArray name = qgetenv("CORVANE_DRIVE");
    return name;
}

QStringList* warnings = nullptr; // those that nobody expects
QtMessageHandler formerHandler = nullptr;

void print(const QString& line)
{
    std::fprintf(stdout, "%s\n", qPrintable(line));
    std::fflush(stdout);
}

void noteMessage(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    // What the offscreen platform can't do is said of every window.
    if (type != QtDebugMsg && type != QtInfoMsg
        && !message.startsWith(QLatin1String("This plugin does not support")))
        warnings->append(message);
    formerHandler(type, context, message);
}

int walk()
{
    InspectorInput input;
    const PropertySnapshot before = PropertySnapshot::take();
    const WalkResult result = walkThroughObjects(input);
    print(QStringLiteral("objects %1, classes %2, fields %3, editors %4")
              .arg(result.objects)
              .arg(result.classes)
              .arg(result.fields)
              .arg(result.editors));
    const QStringList faults = result.faults + before.changes();
    for (const QString& fault : faults)
        print(QStringLiteral("fault: ") + fault);
    return faults.isEmpty() ? Passed : Failed;
}

int edit()
{
    InspectorInput input;
    const EditResult result = editSafeProperties(input);
    for (const QString& line : result.notes)
        print(line);
    print(QStringLiteral("objects %1, edited %2").arg(result.objects).arg(result.edited));
    for (const QString& fault : result.faults)
        print(QStringLiteral("fault: ") + fault);
    return result.faults.isEmpty() ? Passed : Failed;
}

int picture()
{
    InspectorInput input;
    const PictureResult result = editPicture(input);
    print(QStringLiteral("changes %1").arg(result.changes));
    for (const QString& fault : result.faults)
        print(QStringLiteral("fault: ") + fault);
    return result.faults.isEmpty() ? Passed : Failed;
}

int draw(const QString& file)
{
    InspectorInput input;
    return drawEditedForm(input, file) ? Passed : Failed;
}

void run()
{
    int status = UnknownTask;
    if (task() != "alone" && !InspectorInput::isReady())
        status = NoWindow;
    else if (task() == "alone")
        status = Passed;
    else if (task() == "walk")
        status = walk();
    else if (task() == "edit")
        status = edit();
    else if (task() == "picture")
        status = picture();
    else if (task().startsWith(drawing))
        status = draw(QFile::decodeName(task().mid(qstrlen(drawing))));
    for (const QString& warning : std::as_const(*warnings))
        print(QStringLiteral("warning: ") + warning);
    std::fflush(nullptr);
    std::_Exit(status); // without the program's questions about files that aren't saved
}

/// Once the program and the inspector stand.
void waitForWindow()
{
    auto* const timer = new QTimer(QCoreApplication::instance());
    QElapsedTimer clock;
    clock.start();
    QObject::connect(timer, &QTimer::timeout, timer, [timer, clock] {
        constexpr int patience = 60000; // milliseconds
        const bool isReady = task() == "alone" || InspectorInput::isReady();
        if (!isReady && clock.elapsed() < patience)
            return;
        if (isReady && !task().startsWith(drawing) && !programIsReady())
            return;
        timer->deleteLater();
        QMetaObject::invokeMethod(QCoreApplication::instance(), &run, Qt::QueuedConnection);
    });
    timer->start(20);
}

void applicationMade()
{
    if (task().isEmpty())
        return;
    qunsetenv("CORVANE_DRIVE"); // for what the program starts
    warnings = new QStringList;
    formerHandler = qInstallMessageHandler(&noteMessage);
    QMetaObject::invokeMethod(QCoreApplication::instance(), &waitForWindow, Qt::QueuedConnection);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(applicationMade)
