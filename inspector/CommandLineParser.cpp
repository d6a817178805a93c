// SPDX-License-Identifier: BSD-3-Clause
#include "CommandLineParser.h"

CommandLineParser::CommandLineParser()
{
    setApplicationDescription(tr("Shows a scene graph and lets you edit it."));
    setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    addPositionalArgument(QStringLiteral("scene"),
        tr("Scene file to open, in JSON; a small scene if there is none."),
        QStringLiteral("[scene.json]"));
    addOptions({ run, help, version, profile, profilesFile, plugin, selection, picture, size, list,
        verbose, get, set, save, after });
    // For the application object, which reads them itself.
    for (const QLatin1String name : toolkitOptions()) {
        QCommandLineOption option(name, QString(), name);
        option.setFlags(QCommandLineOption::HiddenFromHelp);
        addOption(option);
    }
}

std::array<QLatin1String, 4> CommandLineParser::toolkitOptions()
{
    return { QLatin1String("platform"), QLatin1String("style"), QLatin1String("stylesheet"),
        QLatin1String("display") };
}

QString CommandLineParser::firstSet(std::initializer_list<QCommandLineOption> options) const
{
    for (const QCommandLineOption& option : options) {
        if (isSet(option))
            return option.names().constFirst();
    }
    return QString();
}

QString CommandLineParser::wholeHelp() const
{
    return helpText() + QLatin1Char('\n')
        + tr("Scripts:\n"
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
