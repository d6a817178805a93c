// SPDX-License-Identifier: BSD-3-Clause
#include "CommandLine.h"

#include "CommandLineParser.h"
#include "ProgramRun.h"

#include <QHash>
#include <QLocale>
#include <QRegularExpression>

namespace {

using Step = SceneScript::Step;

constexpr int maxPictureSide = 16384; // pixels
constexpr double maxSeconds = 86400; // to wait for a program: a day

CommandLine refusal(const QString& error)
{
    CommandLine commandLine;
    commandLine.request = CommandLine::Request::Error;
    commandLine.error = error;
    return commandLine;
}

/// The steps of a script in the order in which they were given. Empty, with `error`, if one of them
/// is incomplete.
QList<Step> scriptSteps(const CommandLineParser& parser, QString* error)
{
    QList<Step> steps;
    QHash<QString, qsizetype> seen;
    for (const QString& name : parser.optionNames()) {
        const QString value = parser.values(name).value(seen[name]++);
        if (parser.list.names().contains(name)) {
            steps += { parser.isSet(parser.verbose) ? Step::Kind::Describe : Step::Kind::List, {},
                {} };
        } else if (parser.get.names().contains(name)) {
            steps += { Step::Kind::Get, value, {} };
        } else if (parser.set.names().contains(name)) {
            const qsizetype equals = NodeAddress::indexOf(value, u'=');
            if (equals < 0) {
                *error = CommandLine::tr("'--set %1' gives no value: NODE.FIELD=TEXT expected")
                             .arg(value);
                return {};
            }
            steps += { Step::Kind::Set, value.left(equals), value.mid(equals + 1) };
        }
    }
    return steps;
}

bool isScript(const CommandLineParser& parser)
{
    return !parser.firstSet({ parser.list, parser.get, parser.set, parser.save }).isEmpty();
}

/// Fills in the script; what is wrong with it, empty if nothing is.
QString readScript(const CommandLineParser& parser, CommandLine& commandLine)
{
    const QString windowOption = parser.firstSet({ parser.profile, parser.profilesFile,
        parser.plugin, parser.selection, parser.picture, parser.size });
    if (!windowOption.isEmpty()) {
        return CommandLine::tr("'--%1' shows no window, so '--%2' means nothing with it.")
            .arg(parser.firstSet({ parser.list, parser.get, parser.set, parser.save }),
                windowOption);
    }
    const bool forProgram = commandLine.request == CommandLine::Request::Program;
    if (parser.isSet(parser.set) && !parser.isSet(parser.save) && !forProgram) {
        return CommandLine::tr("'--set' changes no file by itself: say where to keep the scene "
                               "with '--save FILE'.");
    }
    if (parser.values(parser.save).size() > 1)
        return CommandLine::tr("More than one '--save'.");
    QString error;
    commandLine.script = { parser.positionalArguments().value(0), scriptSteps(parser, &error),
        parser.value(parser.save) };
    return error;
}

/// An invalid size for a text that isn't one.
QSize parseSize(const QString& text)
{
    static const QRegularExpression pattern(
        QRegularExpression::anchoredPattern(QStringLiteral("([0-9]{1,5})[xX]([0-9]{1,5})")));
    const QRegularExpressionMatch match = pattern.match(text);
    const QSize size(match.captured(1).toInt(), match.captured(2).toInt());
    const QSize limits(maxPictureSide, maxPictureSide);
    return size.isEmpty() || size.boundedTo(limits) != size ? QSize() : size;
}

/// Fills in the size of the picture; what is wrong with it, empty if nothing is.
QString readSize(const CommandLineParser& parser, CommandLine& commandLine)
{
    const QString text = parser.value(parser.size);
    commandLine.pictureSize = parseSize(text);
    if (!commandLine.pictureSize.isValid()) {
        return CommandLine::tr("Bad size '%1': two numbers up to %2 expected, as in 1280x800.")
            .arg(text, QString::number(maxPictureSide));
    }
    return parser.isSet(parser.picture) ? QString()
                                        : CommandLine::tr("'--size' needs '--picture'.");
}

/// Fills in when to look into a program; what is wrong with it, empty if nothing is.
QString readTime(const CommandLineParser& parser, CommandLine& commandLine)
{
    if (commandLine.request != CommandLine::Request::Program)
        return CommandLine::tr("'--after' needs '--run'.");
    bool isNumber = false;
    const QString text = parser.value(parser.after);
    const double seconds = QLocale::c().toDouble(text, &isNumber);
    if (!isNumber || !(seconds >= 0 && seconds <= maxSeconds))
        return CommandLine::tr("Bad time '%1': seconds expected, as in 2.5.").arg(text);
    commandLine.after = seconds;
    return QString();
}

/// What can't stand beside `--run`; empty if nothing is wrong.
QString programError(const CommandLineParser& parser)
{
    if (!parser.positionalArguments().isEmpty()) {
        return CommandLine::tr("'--run' shows a program, not the scene file '%1'.")
            .arg(parser.positionalArguments().constFirst());
    }
    QString odd
        = parser.firstSet({ parser.profile, parser.profilesFile, parser.plugin, parser.save });
    for (const QLatin1String name : CommandLineParser::toolkitOptions()) {
        if (odd.isEmpty() && parser.isSet(name))
            odd = name;
    }
    return odd.isEmpty() ? QString()
                         : CommandLine::tr("'--%1' means nothing with '--run'.").arg(odd);
}

/// What is wrong with the options, as far as they can be told to be right by themselves.
QString generalError(const CommandLineParser& parser)
{
    if (parser.isSet(parser.run))
        return CommandLine::tr("'--run' and the name of the program are two words.");
    const QStringList scenes = parser.positionalArguments();
    if (scenes.size() > 1)
        return CommandLine::tr("More than one scene file: '%1'").arg(scenes.at(1));
    for (const QCommandLineOption& option : { parser.profile, parser.profilesFile, parser.plugin,
             parser.selection, parser.picture, parser.size, parser.get, parser.set, parser.save }) {
        if (parser.isSet(option) && parser.values(option).contains(QString()))
            return CommandLine::tr("Empty value for '--%1'.").arg(option.names().constFirst());
    }
    if (parser.isSet(parser.verbose) && !parser.isSet(parser.list))
        return CommandLine::tr("'--verbose' needs '--list'.");
    return QString();
}

} // namespace

CommandLine CommandLine::parse(const QStringList& arguments)
{
    const qsizetype run = ProgramRun::indexIn(arguments);
    const bool forProgram = run >= 0;
    CommandLineParser parser;
    if (!parser.parse(forProgram ? arguments.first(run) : arguments))
        return refusal(parser.errorText());
    CommandLine commandLine;
    if (parser.isSet(parser.help))
        commandLine.request = Request::Help;
    else if (parser.isSet(parser.version))
        commandLine.request = Request::Version;
    if (commandLine.request != Request::Run)
        return commandLine;

    QString error = generalError(parser);
    if (forProgram) {
        commandLine.request = Request::Program;
        commandLine.options = arguments.mid(1, run - 1);
        if (error.isEmpty())
            error = programError(parser);
    } else if (isScript(parser)) {
        commandLine.request = Request::Script;
    }
    if (error.isEmpty() && parser.isSet(parser.after))
        error = readTime(parser, commandLine);
    if (error.isEmpty() && isScript(parser))
        error = readScript(parser, commandLine);
    if (error.isEmpty() && parser.isSet(parser.size))
        error = readSize(parser, commandLine);
    if (!error.isEmpty())
        return refusal(error);

    commandLine.scene = parser.positionalArguments().value(0);
    commandLine.profile = parser.value(parser.profile);
    commandLine.profilesFile = parser.value(parser.profilesFile);
    commandLine.selection = parser.value(parser.selection);
    commandLine.picture = parser.value(parser.picture);
    commandLine.plugins = parser.values(parser.plugin);
    commandLine.platform = parser.value(QStringLiteral("platform"));
    commandLine.display = parser.value(QStringLiteral("display"));
    for (const QLatin1String name : CommandLineParser::toolkitOptions()) {
        if (parser.isSet(name))
            commandLine.toolkitArguments << QLatin1Char('-') + name << parser.value(name);
    }
    return commandLine;
}

QString CommandLine::helpText() { return CommandLineParser().wholeHelp(); }
