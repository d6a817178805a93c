// SPDX-License-Identifier: BSD-3-Clause
#include "CommandLine.h"

#include <QCommandLineParser>

#include <array>

namespace {

// The options with their parser; whoever needs it makes one.
struct Parser : QCommandLineParser {
    Parser()
    {
        setApplicationDescription(CommandLine::tr("Shows a scene graph and lets you edit it."));
        setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
        addPositionalArgument(QStringLiteral("scene"),
            CommandLine::tr("Scene file to open, in JSON."), QStringLiteral("[scene.json]"));
        addOptions({ help, version, profile, profilesFile, selection, picture, plugin });
        // For the application object, which reads them itself.
        for (const QLatin1String name : toolkitOptions()) {
            QCommandLineOption option(name, QString(), name);
            option.setFlags(QCommandLineOption::HiddenFromHelp);
            addOption(option);
        }
    }

    static std::array<QLatin1String, 4> toolkitOptions()
    {
        return { QLatin1String("platform"), QLatin1String("style"), QLatin1String("stylesheet"),
            QLatin1String("display") };
    }

    const QCommandLineOption help { { QStringLiteral("h"), QStringLiteral("help") },
        CommandLine::tr("Shows this help.") };
    const QCommandLineOption version { { QStringLiteral("v"), QStringLiteral("version") },
        CommandLine::tr("Shows the version.") };
    const QCommandLineOption profile { QStringLiteral("profile"),
        CommandLine::tr("Profile to start with."), QStringLiteral("name") };
    const QCommandLineOption profilesFile { QStringLiteral("profiles"),
        CommandLine::tr("File of profiles, in place of the built-in ones."),
        QStringLiteral("file") };
    const QCommandLineOption selection { QStringLiteral("select"),
        CommandLine::tr("Node, or node and field, to select. A node goes by its name or its type."),
        QStringLiteral("node[.field]") };
    const QCommandLineOption picture { QStringLiteral("picture"),
        CommandLine::tr("Draws the window into a PNG file, without a display, and ends."),
        QStringLiteral("file") };
    const QCommandLineOption plugin { QStringLiteral("plugin"),
        CommandLine::tr("Plug-in to load in place of the default extensions; may be given several "
                        "times."),
        QStringLiteral("file") };
};

CommandLine refusal(const QString& error)
{
    CommandLine commandLine;
    commandLine.request = CommandLine::Request::Error;
    commandLine.error = error;
    return commandLine;
}

} // namespace

CommandLine CommandLine::parse(const QStringList& arguments)
{
    Parser parser;
    if (!parser.parse(arguments))
        return refusal(parser.errorText());
    CommandLine commandLine;
    if (parser.isSet(parser.help))
        commandLine.request = Request::Help;
    else if (parser.isSet(parser.version))
        commandLine.request = Request::Version;
    if (commandLine.request != Request::Run)
        return commandLine;

    const QStringList scenes = parser.positionalArguments();
    if (scenes.size() > 1)
        return refusal(tr("More than one scene file: '%1'").arg(scenes.at(1)));
    for (const QCommandLineOption& option :
        { parser.profile, parser.profilesFile, parser.selection, parser.picture, parser.plugin }) {
        if (parser.isSet(option) && parser.values(option).contains(QString()))
            return refusal(tr("Empty value for '--%1'.").arg(option.names().constFirst()));
    }
    commandLine.scene = scenes.value(0);
    commandLine.profile = parser.value(parser.profile);
    commandLine.profilesFile = parser.value(parser.profilesFile);
    commandLine.selection = parser.value(parser.selection);
    commandLine.picture = parser.value(parser.picture);
    commandLine.plugins = parser.values(parser.plugin);
    for (const QLatin1String name : Parser::toolkitOptions()) {
        if (parser.isSet(name))
            commandLine.toolkitArguments << QLatin1Char('-') + name << parser.value(name);
    }
    return commandLine;
}

QString CommandLine::helpText() { return Parser().helpText(); }
