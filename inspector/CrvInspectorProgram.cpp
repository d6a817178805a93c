// SPDX-License-Identifier: BSD-3-Clause
#include "CrvInspectorProgram.h"

#include "CommandLine.h"
#include "DisplayCheck.h"
#include "MainWindow.h"
#include "Messages.h"
#include "Picture.h"
#include "ProgramRun.h"
#include "Startup.h"
#include "ToolkitMessages.h"

#include <QApplication>
#include <QSettings>

#include <cstdio>
#include <memory>
#include <optional>
#include <vector>

namespace {

constexpr int usageError = 2;

QStringList argumentList(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments += QString::fromLocal8Bit(argv[i]);
    return arguments;
}

// The arguments for the application object, which would take "--plugin" for an option of its own.
class ApplicationArguments {
public:
    // NOLINTNEXTLINE(readability-non-const-parameter): the application object gets it as it came
    ApplicationArguments(char* program, const QStringList& arguments)
        : m_pointers { program }
    {
        for (const QString& argument : arguments)
            m_words += argument.toLocal8Bit();
        for (QByteArray& word : m_words)
            m_pointers.push_back(word.data());
        m_count = static_cast<int>(m_pointers.size());
        m_pointers.push_back(nullptr);
    }

    int& count() { return m_count; }
    char** values() { return m_pointers.data(); }

private:
    QByteArrayList m_words;
    std::vector<char*> m_pointers;
    int m_count;
};

// Uses the process's own streams, since a console dock may have taken over those of C++.
int fail(const QString& error)
{
    complainToTerminal(QStringLiteral("corvane: ") + error);
    return usageError;
}

// Help and version need no display.
int answer(int argc, char** argv, CommandLine::Request request)
{
    const ToolkitMessages messages(ToolkitMessages::Manner::Hush, QString(), usageError);
    const QCoreApplication application(argc, argv);
    if (request == CommandLine::Request::Help)
        sayToTerminal(CommandLine::helpText().trimmed());
    else
        sayToTerminal(QStringLiteral("corvane %1").arg(QCoreApplication::applicationVersion()));
    return 0;
}

// Without an application object, which would only take time.
int runScript(const ScriptRun& script)
{
    QByteArray output;
    QString error;
    if (!script.run(&output, &error))
        return fail(error);
    const auto size = static_cast<std::size_t>(output.size());
    if (std::fwrite(output.constData(), 1, size, stdout) != size || std::fflush(stdout) != 0)
        return fail(CommandLine::tr("the standard output stream can't be written"));
    return 0;
}

int runProgram(char** argv, const CommandLine& commandLine)
{
    QString error;
    if (!commandLine.picture.isEmpty() && !Picture::hasKnownFormat(commandLine.picture, &error))
        return fail(error);
    return ProgramRun::start(argv + commandLine.options.size() + 2, commandLine.options,
        commandLine.endsProgram() ? ProgramRun::Output::Error : ProgramRun::Output::Own);
}

// A picture needs no display, so none is opened, unless there is one and a platform was asked for.
void drawOffscreen()
{
    const QString platform = qEnvironmentVariable("QT_QPA_PLATFORM");
    if (platform.isEmpty() || !displayAnswers(platform) || !displayAnswers(QString()))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

bool hasDisplay(const CommandLine& commandLine)
{
    const QString platform = commandLine.platform.isEmpty()
        ? qEnvironmentVariable("QT_QPA_PLATFORM")
        : commandLine.platform;
    return displayAnswers(platform, commandLine.display);
}

int takePicture(MainWindow& window, const CommandLine& commandLine)
{
    QString error;
    if (!Picture::take(window, commandLine.pictureSize, commandLine.picture, &error))
        return fail(error);
    sayToTerminal(CommandLine::tr("Wrote %1").arg(commandLine.picture));
    return 0;
}

int runWindow(const CommandLine& commandLine)
{
    const bool forPerson = commandLine.picture.isEmpty();
    QString error;
    if (!forPerson && !Picture::hasKnownFormat(commandLine.picture, &error))
        return fail(error);
    std::unique_ptr<QSettings> settings;
    if (forPerson)
        settings = std::make_unique<QSettings>();

    MainWindow window(settings.get());
    Startup startup(window);
    if (!startup.applyCommandLine(commandLine))
        return fail(startup.errorText());
    if (!forPerson)
        return takePicture(window, commandLine);
    window.restoreLayout();
    window.show();
    return QApplication::exec();
}

} // namespace

int CrvInspectorProgram::run(int argc, char** argv)
{
    QCoreApplication::setOrganizationName(QStringLiteral("Orbel"));
    QCoreApplication::setApplicationName(QStringLiteral("Corvane"));
    QCoreApplication::setApplicationVersion(QStringLiteral(CORVANE_VERSION));

    const CommandLine commandLine = CommandLine::parse(argumentList(argc, argv));
    if (commandLine.request == CommandLine::Request::Error)
        return fail(commandLine.error);
    if (commandLine.request == CommandLine::Request::Program)
        return runProgram(argv, commandLine);
    if (commandLine.request == CommandLine::Request::Script)
        return runScript(commandLine.script);
    if (commandLine.request != CommandLine::Request::Run)
        return answer(argc, argv, commandLine.request);

    const bool forPerson = commandLine.picture.isEmpty();
    const QString advice = CommandLine::tr(
        "--picture FILE draws the window into a file, and --list, --get and --set show none");
    if (!forPerson)
        drawOffscreen();
    else if (!hasDisplay(commandLine))
        return fail(
            CommandLine::tr("no display answers, so no window can be opened; %1").arg(advice));
    std::optional<ToolkitMessages> messages(std::in_place,
        forPerson ? ToolkitMessages::Manner::PassOn : ToolkitMessages::Manner::Hush,
        forPerson ? advice : QString(), usageError);
    ApplicationArguments arguments(argv[0], commandLine.toolkitArguments);
    const QApplication application(arguments.count(), arguments.values());
    if (forPerson)
        messages.reset();
    return runWindow(commandLine);
}
