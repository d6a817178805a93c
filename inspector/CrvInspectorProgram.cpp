// SPDX-License-Identifier: BSD-3-Clause
#include "CrvInspectorProgram.h"

#include "CommandLine.h"
#include "MainWindow.h"
#include "Messages.h"
#include "Picture.h"
#include "Startup.h"

#include <QApplication>
#include <QSettings>

#include <memory>
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
    const QCoreApplication application(argc, argv);
    if (request == CommandLine::Request::Help)
        sayToTerminal(CommandLine::helpText().trimmed());
    else
        sayToTerminal(QStringLiteral("corvane %1").arg(QCoreApplication::applicationVersion()));
    return 0;
}

// A picture needs no display, so none is opened, unless there is one and a platform was asked for.
void drawOffscreen()
{
    const bool hasDisplay = !qEnvironmentVariableIsEmpty("DISPLAY")
        || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    if (!hasDisplay || qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

int takePicture(MainWindow& window, const QString& fileName)
{
    QString error;
    if (!Picture::take(window, fileName, &error))
        return fail(error);
    sayToTerminal(CommandLine::tr("Wrote %1").arg(fileName));
    return 0;
}

int runWindow(const CommandLine& commandLine)
{
    const bool forPerson = commandLine.picture.isEmpty();
    std::unique_ptr<QSettings> settings;
    if (forPerson)
        settings = std::make_unique<QSettings>();

    MainWindow window(settings.get());
    Startup startup(window);
    if (!startup.applyCommandLine(commandLine))
        return fail(startup.errorText());
    if (!forPerson)
        return takePicture(window, commandLine.picture);
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
    if (commandLine.request != CommandLine::Request::Run)
        return answer(argc, argv, commandLine.request);

    if (!commandLine.picture.isEmpty())
        drawOffscreen();
    ApplicationArguments arguments(argv[0], commandLine.toolkitArguments);
    const QApplication application(arguments.count(), arguments.values());
    return runWindow(commandLine);
}
