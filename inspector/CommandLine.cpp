// SPDX-License-Identifier: BSD-3-Clause
#include "CommandLine.h"

#include "ProgramRun.h"

#include <QCommandLineParser>
#include <QHash>
#include <QLocale>
#include <QRegularExpression>

#include <array>

namespace {

using Step = SceneScript::Step;

constexpr int maxPictureSide = 16384; // pixels
constexpr double maxSeconds = 86400; // to wait for a program: a day

// The options with their parser; whoever needs it makes one.
struct Parser : QCommandLineParser {
    Parser()
    {
        setApplicationDescription(CommandLine::tr("Shows a scene graph and lets you edit it."));
        setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
        addPositionalArgument(QStringLiteral("scene"),
            CommandLine::tr("Scene file to open, in JSON; a small scene if there is none."),
            QStringLiteral("[scene.json]"));
        addOptions({ run, help, version, profile, profilesFile, plugin, selection, picture, size,
            list, verbose, get, set, save, after });
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

    /// The first of the options that was given; empty if none was.
    QString firstSet(std::initializer_list<QCommandLineOption> options) const
    {
        for (const QCommandLineOption& option : options) {
            if (isSet(option))
                return option.names().constFirst();
        }
        return QString();
    }

    const QCommandLineOption run { QStringLiteral("run"),
        CommandLine::tr("Starts a program of Qt's with the inspector in it. Comes last; all that "
                        "follows the program is its own."),
        QStringLiteral("program [arguments]") };
    const QCommandLineOption help { { QStringLiteral("h"), QStringLiteral("help") },
        CommandLine::tr("Shows this help.") };
    const QCommandLineOption version { { QStringLiteral("v"), QStringLiteral("version") },
        CommandLine::tr("Shows the version.") };
    const QCommandLineOption profile { QStringLiteral("profile"),
        CommandLine::tr("Profile to start with."), QStringLiteral("name") };
    const QCommandLineOption profilesFile { QStringLiteral("profiles"),
        CommandLine::tr("File of profiles, in place of the built-in ones."),
        QStringLiteral("file") };
    const QCommandLineOption plugin { QStringLiteral("plugin"),
        CommandLine::tr("Plug-in to load in place of the default extensions; may be given several "
                        "times."),
        QStringLiteral("file") };
    const QCommandLineOption selection { QStringLiteral("select"),
        CommandLine::tr("Node, or node and field, to select; see below for how nodes are "
                        "called."),
        QStringLiteral("node[.field]") };
    const QCommandLineOption picture { QStringLiteral("picture"),
        CommandLine::tr("Draws the window into a file, without a display, and ends. The suffix of "
                        "the file says the format: png, jpg, bmp..."),
        QStringLiteral("file") };
    const QCommandLineOption size { QStringLiteral("size"),
        CommandLine::tr("Size of the picture in pixels."), QStringLiteral("widthxheight") };
    const QCommandLineOption list { QStringLiteral("list"),
        CommandLine::tr("Prints all nodes and their fields.") };
    const QCommandLineOption verbose { QStringLiteral("verbose"),
        CommandLine::tr("Lists what is known of each field as well.") };
    const QCommandLineOption get { QStringLiteral("get"),
        CommandLine::tr("Prints the value of a field."), QStringLiteral("node.field") };
    const QCommandLineOption set { QStringLiteral("set"),
        CommandLine::tr("Gives a field a value; needs --save or --run."),
        QStringLiteral("node.field=text") };
    const QCommandLineOption save { QStringLiteral("save"),
        CommandLine::tr("Saves the scene into a file, which may be the scene's own."),
        QStringLiteral("file") };
    const QCommandLineOption after { QStringLiteral("after"),
        CommandLine::tr("Looks into a program so long after its start, in place of when it has "
                        "shown its windows; needs --run."),
        QStringLiteral("seconds") };
};

CommandLine refusal(const QString& error)
{
    CommandLine commandLine;
    commandLine.request = CommandLine::Request::Error;
    commandLine.error = error;
    return commandLine;
}

/// The steps of a script in the order in which they were given. Empty, with `error`, if one of them
/// is incomplete.
QList<Step> scriptSteps(const Parser& parser, QString* error)
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

bool isScript(const Parser& parser)
{
    return !parser.firstSet({ parser.list, parser.get, parser.set, parser.save }).isEmpty();
}

/// Fills in the script; what is wrong with it, empty if nothing is.
QString readScript(const Parser& parser, CommandLine& commandLine)
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
QString readSize(const Parser& parser, CommandLine& commandLine)
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
QString readTime(const Parser& parser, CommandLine& commandLine)
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
QString programError(const Parser& parser)
{
    if (!parser.positionalArguments().isEmpty()) {
        return CommandLine::tr("'--run' shows a program, not the scene file '%1'.")
            .arg(parser.positionalArguments().constFirst());
    }
    QString odd
        = parser.firstSet({ parser.profile, parser.profilesFile, parser.plugin, parser.save });
    for (const QLatin1String name : Parser::toolkitOptions()) {
        if (odd.isEmpty() && parser.isSet(name))
            odd = name;
    }
    return odd.isEmpty() ? QString()
                         : CommandLine::tr("'--%1' means nothing with '--run'.").arg(odd);
}

/// What is wrong with the options, as far as they can be told to be right by themselves.
QString generalError(const Parser& parser)
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

// What QCommandLineParser has no place for.
QString scriptHelp()
{
    return CommandLine::tr(
        "Scripts:\n"
        "  --list, --get and --set may be given several times and are taken in order,\n"
        "  without a window. If anything is refused, nothing is printed or saved, the\n"
        "  reason goes to the standard error stream, and the exit status is 2.\n"
        "\n"
        "  --list prints a line PATH<TAB>TYPE for each node, and for each of its fields\n"
        "  PATH.FIELD<TAB>TYPE<TAB>TEXT. With --verbose, what is known of the field\n"
        "  follows behind one more tabulator.\n"
        "\n"
        "  TEXT is the form in which a scene file holds values: 0.5, TRUE, \"a text\",\n"
        "  1 0 0, [ 1, 2, 3 ]. The text \"\" is the default value of every type.\n"
        "\n"
        "Programs:\n"
        "  With --run, the nodes are the program's objects and the fields their properties.\n"
        "  --list, --get, --set and --picture end the program at once when they are done,\n"
        "  with status 0 or 2, and what it prints itself goes to the standard error\n"
        "  stream. --set goes through the property's setter. Without --after they look\n"
        "  when the program has shown its windows, or after 5 seconds.\n"
        "\n"
        "Nodes:\n"
        "  Lamp             A node of this name or, if there is none, of this type.\n"
        "  Room/Lamp        One directly below another. --list prints the whole path.\n"
        "  /Room/Lamp       The same, where Room is the root.\n"
        "  PointLight[2]    The third one, where several nodes are meant.\n"
        "  a\\/b             The node \"a/b\": a backslash stands before / [ = and itself,\n"
        "                   where they are part of a name. \\n is a line end, \\t a\n"
        "                   tabulator.\n"
        "\n"
        "  A node without a name goes by its type. The last point parts the field from\n"
        "  the node, so points in names need nothing. Upper and lower case matter only\n"
        "  where they decide. Where several nodes fit, the program lists them and ends.\n");
}

} // namespace

CommandLine CommandLine::parse(const QStringList& arguments)
{
    const qsizetype run = ProgramRun::indexIn(arguments);
    const bool forProgram = run >= 0;
    Parser parser;
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
    for (const QLatin1String name : Parser::toolkitOptions()) {
        if (parser.isSet(name))
            commandLine.toolkitArguments << QLatin1Char('-') + name << parser.value(name);
    }
    return commandLine;
}

QString CommandLine::helpText() { return Parser().helpText() + QLatin1Char('\n') + scriptHelp(); }
