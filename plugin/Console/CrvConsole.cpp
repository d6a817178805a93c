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
#include <QScopedValueRollback>
#include <QTextCursor>
#include <QTextDocument>
#include <QThread>

#include <iostream>
#include <iterator>

namespace {

constexpr int consoleEventType = QEvent::User;

enum OutputType { ErrorOutput = 0, InfoOutput = 1, WarningOutput = 2 };

// A second press of a button is felt after 100 ms and more. Waiting, a slice, its layout and the
// drawing together stay below that.
constexpr std::chrono::milliseconds patience { 50 };
constexpr int sliceMilliseconds = 20;
// Inserting text takes next to no time, laying it out some 0.1 us a character.
constexpr qsizetype sliceCharacters = 100000;
// A slow machine shows this much in any case, so that a handful of messages comes in one turn.
constexpr qsizetype sliceLeast = 4096;

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

/// Text that another thread printed; it gives its place up when it is shown or dropped.
class CrvConsole::PrintEvent : public ConsoleEvent {
public:
    PrintEvent(const QString& text, PrintBrake::Place&& messagePlace)
        : ConsoleEvent(text)
        , place(std::move(messagePlace))
    {
    }

    PrintBrake::Place place;
};

void CrvConsole::Slice::start()
{
    m_clock.start();
    m_characters = 0;
}

bool CrvConsole::Slice::isSpent() const
{
    return m_characters >= sliceCharacters
        || (m_characters >= sliceLeast && m_clock.elapsed() >= sliceMilliseconds);
}

CrvConsole::CrvConsole()
    : m_errorColor(Qt::darkRed)
    , m_infoColor(Qt::darkGreen)
    , m_warningColor(Qt::darkYellow)
    , m_brake(brakeLimit, patience)
{
    static_assert(std::size(errorClasses) == errorClassCount);
    m_name = "Console";
    m_description = "A console which prints the standard output and error.";
    m_author = "Orbel";
    m_version = "1.0.0";
    m_nextSlice.setSingleShot(true);
    connect(&m_nextSlice, &QTimer::timeout, this, &CrvConsole::showSlice);
}

CrvConsole::~CrvConsole()
{
    // Streams and handlers mustn't keep a console that its host forgot to unload.
    m_brake.setEngaged(false);
    releaseStream(m_cerrRedirector);
    releaseStream(m_coutRedirector);
    CrvConsole::unload();
    // A message holds a place of the brake.
    QCoreApplication::removePostedEvents(this, consoleEventType);
}

bool CrvConsole::event(QEvent* e)
{
    if (e->type() == consoleEventType) {
        // Any code may post an event of this number.
        if (auto* const printed = dynamic_cast<PrintEvent*>(e))
            take({ printed->getText(), printed->getOutputType(), std::move(printed->place) });
        else if (const auto* const message = dynamic_cast<ConsoleEvent*>(e))
            take({ message->getText(), message->getOutputType(), {} });
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
    // The three colours of the text are dark, so the ground is light under a dark palette too.
    QPalette light = m_consoleOutput->palette();
    light.setColor(QPalette::Base, Qt::white);
    light.setColor(QPalette::Text, Qt::black);
    m_consoleOutput->setPalette(light);
    // Nobody can undo a message, and keeping what that takes costs memory for each.
    m_consoleOutput->setUndoRedoEnabled(false);

    m_showErrors = m_showInfos = m_showWarnings = true;
    connect(m_clearButton, &QPushButton::clicked, this, &CrvConsole::clear);
    connect(m_errorsButton, &QPushButton::toggled, this, &CrvConsole::outputErrors);
    connect(m_infosButton, &QPushButton::toggled, this, &CrvConsole::outputInfos);
    connect(m_saveButton, &QPushButton::clicked, this, &CrvConsole::save);
    connect(m_warningsButton, &QPushButton::toggled, this, &CrvConsole::outputWarnings);

    // A message that arrived while there was no view belongs to no view.
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
    m_nextSlice.stop();
    m_backlog.clear();
    m_echoes.clear();
    delete m_frame;
    m_frame = nullptr;
    delete m_dock;
    m_dock = nullptr;
    for (int i = 0; i < errorClassCount; ++i)
        errorClasses[i].setCallback(m_previousHandlers[i], m_previousHandlerData[i]);
    // No thread is inside the handler any more, so this removes the last message.
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
    // Releasing a stream waits for the threads inside of it.
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
    // Nothing more: the kernel's lock is held, for which other threads wait.
    auto* const event = new ConsoleEvent(QString::fromStdString(error->getDebugString().toUtf8()));
    event->setOutputType(outputType);
    QCoreApplication::postEvent(static_cast<CrvConsole*>(data), event, 0);
}

template <int outputType>
void CrvConsole::takeStreamText(const char* text, std::streamsize count, void* userData)
{
    auto* const console = static_cast<CrvConsole*>(userData);
    const QString message = QString::fromUtf8(text, static_cast<qsizetype>(count));
    if (QThread::currentThread() == console->thread()) {
        console->print(message, outputType);
        return;
    }
    auto* const event = new PrintEvent(
        message, console->m_brake.enter(messageWeight + static_cast<std::size_t>(count)));
    event->setOutputType(outputType);
    QCoreApplication::postEvent(console, event, 0);
}

void CrvConsole::print(const QString& text, int outputType)
{
    if (!m_frame)
        return;
    // What the view itself prints while it takes a message (a host's message handler may write to
    // a stream) waits, since a document can't be changed from inside its own layout. It stays in
    // front of what this thread prints later.
    if (m_appending) {
        m_echoes.push_back({ text, outputType, {} });
        return;
    }
    changeView([&] {
        showEchoes();
        addMessage({ text, outputType, {} });
    });
}

void CrvConsole::take(Message message)
{
    if (!m_frame)
        return;
    // Qt delivers posted events until there is none left, before it looks at input.
    goOnLater();
    if (m_appending || !m_backlog.empty() || m_slice.isSpent()) {
        m_backlog.push_back(std::move(message));
        return;
    }
    m_slice.count(message.text);
    changeView([&] { addMessage(message); });
}

void CrvConsole::goOnLater()
{
    if (m_nextSlice.isActive())
        return;
    m_slice.start();
    m_nextSlice.start();
}

void CrvConsole::showSlice()
{
    // An event loop inside of the view's own signals; changeView goes on.
    if (m_appending)
        return;
    m_slice.start();
    changeView([this] {
        showEchoes();
        showBacklog();
    });
}

template <class Work>
void CrvConsole::changeView(Work work)
{
    {
        const QScopedValueRollback<bool> appending(m_appending, true);
        const KeepPlace keepPlace(*m_consoleOutput);
        work();
    }
    if (!m_backlog.empty() || !m_echoes.empty())
        goOnLater();
}

void CrvConsole::showEchoes()
{
    // Only those of now: showing one may bring the next.
    for (auto count = m_echoes.size(); count > 0; --count) {
        const Message message = std::move(m_echoes.front());
        m_echoes.pop_front();
        addMessage(message);
    }
}

void CrvConsole::showBacklog()
{
    if (m_backlog.empty())
        return;
    const auto isLong = [this] { return m_backlog.front().text.size() >= longWord; };
    const auto showFirst = [this] {
        const Message message = std::move(m_backlog.front());
        m_backlog.pop_front();
        m_slice.count(message.text);
        addMessage(message);
    };
    // It may change the way that lines are broken, which takes a layout that is up to date.
    if (isLong()) {
        showFirst();
        return;
    }
    // One layout for all of them: for each message by itself it takes ten times as long.
    QTextCursor all(m_consoleOutput->document());
    all.beginEditBlock();
    while (!m_backlog.empty() && !isLong() && !m_slice.isSpent())
        showFirst();
    all.endEditBlock();
}

void CrvConsole::addMessage(const Message& message)
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
    // What a longer file held behind the text goes, but not before the text is in.
    const QByteArray text = m_consoleOutput->toPlainText().toLatin1();
    if (file.write(text) == text.size() && file.flush())
        file.resize(file.pos());
}
