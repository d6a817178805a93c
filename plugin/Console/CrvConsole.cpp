// SPDX-License-Identifier: BSD-3-Clause
#include "CrvConsole.h"

#include "ConsoleText.h"
#include "CrvShell.h"
#include "KnDebugError.h"
#include "KnErrorStack.h"
#include "KnGLError.h"
#include "KnMemoryError.h"
#include "KnPreferences.h"
#include "KnReadError.h"
#include "StreamCapture.h"

#include <QCoreApplication>
#include <QDockWidget>
#include <QFile>
#include <QFileDialog>
#include <QThread>

#include <iostream>
#include <iterator>
#include <memory>

namespace {

constexpr int consoleEventType = QEvent::User;

enum OutputType { ErrorOutput = 0, InfoOutput = 1, WarningOutput = 2 };

// How long a thread that prints waits for the view: longer than a slice and its layout take on a
// busy machine, and too short for a person to notice when the user interface waits for the thread.
constexpr std::chrono::milliseconds patience { 100 };
// Some thousand lines on their way: enough for several slices, soon shown.
constexpr std::size_t brakeLimit = 1 << 20;
constexpr std::size_t messageWeight = 256; // of a posted event without its text

struct ErrorClass {
    KnErrorCallback (*getCallback)();
    void* (*getData)();
    void (*setCallback)(KnErrorCallback callback, void* data);
};

template <class Error>
constexpr ErrorClass errorClass
    = { &Error::getHandlerCallback, &Error::getHandlerData, &Error::setHandlerCallback };

constexpr ErrorClass errorClasses[] = {
    errorClass<KnDebugError>,
    errorClass<KnError>,
    errorClass<KnErrorStack>,
    errorClass<KnGLError>,
    errorClass<KnMemoryError>,
    errorClass<KnReadError>,
};

} // namespace

CrvConsole::ConsoleEvent::ConsoleEvent(const QString& text)
    : QEvent(static_cast<QEvent::Type>(consoleEventType))
    , m_text(text)
{
}

/// Text that another thread printed. Its place is given up when the text is shown or dropped.
class CrvConsole::PrintEvent : public ConsoleEvent {
public:
    PrintEvent(const QString& text, PrintBrake::Place&& messagePlace)
        : ConsoleEvent(text)
        , place(std::move(messagePlace))
    {
    }

    PrintBrake::Place place;
};

CrvConsole::CrvConsole()
    : m_errorColor(Qt::darkRed)
    , m_infoColor(Qt::darkGreen)
    , m_warningColor(Qt::darkYellow)
    , m_brake(brakeLimit, patience)
    , m_feed([this](const MessageFeed::Message& message) { addMessage(message); })
{
    static_assert(std::size(errorClasses) == errorClassCount);
    m_name = "Console";
    m_description = "A console which prints the standard output and error.";
    m_author = "Orbel";
    m_version = "1.0.0";
}

CrvConsole::~CrvConsole()
{
    // Streams and handlers mustn't keep a console that its host forgot to unload.
    m_brake.setEngaged(false);
    releaseStream(m_cerrRedirector);
    releaseStream(m_coutRedirector);
    CrvConsole::unload();
    // Posted messages hold places of the brake, which goes now.
    QCoreApplication::removePostedEvents(this, consoleEventType);
}

bool CrvConsole::event(QEvent* e)
{
    if (e->type() == consoleEventType) {
        // Other code may post events of this number, too.
        if (auto* const printed = dynamic_cast<PrintEvent*>(e)) {
            m_brake.noteArrival();
            m_feed.take(
                { printed->getText(), printed->getOutputType(), std::move(printed->place) });
        } else if (const auto* const message = dynamic_cast<ConsoleEvent*>(e)) {
            m_feed.take({ message->getText(), message->getOutputType(), {} });
        }
    }
    return QObject::event(e);
}

void CrvConsole::load()
{
    m_dock = new QDockWidget;
    // A main window keeps and restores its docks by object name.
    m_dock->setObjectName(QStringLiteral("Console"));
    m_frame = new QFrame(m_dock);
    setupUi(m_frame);
    // The three text colours are dark, so the background stays light under a dark palette.
    QPalette light = m_consoleOutput->palette();
    light.setColor(QPalette::Base, Qt::white);
    light.setColor(QPalette::Text, Qt::black);
    m_consoleOutput->setPalette(light);
    // Nobody can undo a message, so the memory for an undo history would be wasted.
    m_consoleOutput->setUndoRedoEnabled(false);
    m_feed.setView(m_consoleOutput);

    m_showErrors = m_showInfos = m_showWarnings = true;
    connect(m_clearButton, &QPushButton::clicked, this, &CrvConsole::clear);
    connect(m_errorsButton, &QPushButton::toggled, this, &CrvConsole::outputErrors);
    connect(m_infosButton, &QPushButton::toggled, this, &CrvConsole::outputInfos);
    connect(m_saveButton, &QPushButton::clicked, this, &CrvConsole::save);
    connect(m_warningsButton, &QPushButton::toggled, this, &CrvConsole::outputWarnings);

    // What arrived while there was no view is dropped.
    QCoreApplication::removePostedEvents(this, consoleEventType);
    for (int i = 0; i < errorClassCount; ++i) {
        m_previousHandlers[i] = errorClasses[i].getCallback();
        m_previousHandlerData[i] = errorClasses[i].getData();
    }
    for (const ErrorClass& error : errorClasses)
        error.setCallback(&CrvConsole::takeError, this);
}

void CrvConsole::unload()
{
    // Without `load` there are no handlers to give back.
    if (!m_dock)
        return;
    m_feed.setView(nullptr);
    delete m_frame;
    m_frame = nullptr;
    delete m_dock;
    m_dock = nullptr;
    for (int i = 0; i < errorClassCount; ++i)
        errorClasses[i].setCallback(m_previousHandlers[i], m_previousHandlerData[i]);
    // No thread is inside the handler any more, so nothing is posted after this.
    QCoreApplication::removePostedEvents(this, consoleEventType);
}

void CrvConsole::activate()
{
    CrvShell::getInstance()->registerExtension(this, 1);
    CrvExtension::activate();
    m_dock->setWidget(m_frame);
    m_dock->setWindowTitle(QStringLiteral("Console"));
    if (KnPreferences::getBool("CORVANE_STDOUT_CAPTURE", 1)) {
        m_brake.setEngaged(true);
        m_cerrRedirector = captureStream(std::cerr, &takeStreamText<ErrorOutput>, this);
        m_coutRedirector = captureStream(std::cout, &takeStreamText<InfoOutput>, this);
    }
    CrvShell::getInstance()->addDockWidget(m_dock, Qt::BottomDockWidgetArea);
    show();
}

void CrvConsole::deactivate()
{
    CrvExtension::deactivate();
    m_dock->setWidget(nullptr);
    // First the brake: releasing a stream waits for the threads that print, which it may hold.
    m_brake.setEngaged(false);
    releaseStream(m_cerrRedirector);
    releaseStream(m_coutRedirector);
    m_cerrRedirector = nullptr;
    m_coutRedirector = nullptr;
    CrvShell::getInstance()->removeDockWidget(m_dock);
    hide();
    CrvShell::getInstance()->unregisterExtension(this);
}

void CrvConsole::show()
{
    CrvExtension::show();
    m_dock->show();
    m_frame->show();
}

void CrvConsole::hide()
{
    CrvExtension::hide();
    m_dock->hide();
    m_frame->hide();
}

void CrvConsole::takeError(const KnError* error, void* data)
{
    int outputType = ErrorOutput;
    if (error->isOfType(KnDebugError::getClassTypeId())) {
        const int severity = static_cast<const KnDebugError*>(error)->getSeverity();
        if (severity == KnDebugError::Warning)
            outputType = WarningOutput;
        else if (severity == KnDebugError::Info)
            outputType = InfoOutput;
    }
    // The kernel holds its lock during this call, and other threads wait for it: only post.
    auto event
        = std::make_unique<ConsoleEvent>(QString::fromStdString(error->getDebugString().toUtf8()));
    event->setOutputType(outputType);
    QCoreApplication::postEvent(static_cast<CrvConsole*>(data), event.release(), 0);
}

template <int Type>
void CrvConsole::takeStreamText(const char* text, std::streamsize count, void* userData)
{
    auto* const console = static_cast<CrvConsole*>(userData);
    const QString message = QString::fromUtf8(text, static_cast<qsizetype>(count));
    if (QThread::currentThread() == console->thread()) {
        console->m_feed.print({ message, Type, {} });
        return;
    }
    auto event = std::make_unique<PrintEvent>(
        message, console->m_brake.enter(messageWeight + static_cast<std::size_t>(count)));
    event->setOutputType(Type);
    QCoreApplication::postEvent(console, event.release(), 0);
}

void CrvConsole::addMessage(const MessageFeed::Message& message)
{
    QTextEdit& view = *m_consoleOutput;
    switch (message.outputType) {
    case InfoOutput:
        if (m_showInfos)
            appendMessage(view, message.text, m_infoColor);
        break;
    case WarningOutput:
        if (m_showWarnings)
            appendMessage(view, message.text, m_warningColor);
        break;
    default:
        if (m_showErrors)
            appendMessage(view, message.text, m_errorColor);
    }
}

void CrvConsole::clear() { clearMessages(*m_consoleOutput); }

void CrvConsole::outputErrors() { m_showErrors = !m_showErrors; }

void CrvConsole::outputInfos() { m_showInfos = !m_showInfos; }

void CrvConsole::outputWarnings() { m_showWarnings = !m_showWarnings; }

void CrvConsole::save()
{
    const QString name = QFileDialog::getSaveFileName(m_frame,
        tr("Save the content of the console"), QStringLiteral("."), tr("Console outputs (*.txt)"));
    if (name.isEmpty())
        return;
    QFile file(name);
    if (!file.open(QIODevice::ReadWrite | QIODevice::Text))
        return;
    // The rest of a longer file is cut off only when the whole text has been written.
    const QByteArray text = m_consoleOutput->toPlainText().toLatin1();
    if (file.write(text) == text.size() && file.flush())
        file.resize(file.pos());
}
