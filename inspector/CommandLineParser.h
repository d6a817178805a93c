// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QCommandLineParser>
#include <QCoreApplication>

#include <array>
#include <initializer_list>

/// The options of the command line with their parser; whoever needs it makes one.
struct CommandLineParser : QCommandLineParser {
    Q_DECLARE_TR_FUNCTIONS(CommandLine)
public:
    CommandLineParser();

    /// Those that the application object reads itself; each takes a value.
    static std::array<QLatin1String, 4> toolkitOptions();
    /// The first of the options that was given; empty if none was.
    QString firstSet(std::initializer_list<QCommandLineOption> options) const;
    /// Also what the base class has no place for.
    QString wholeHelp() const;

    const QCommandLineOption run { QStringLiteral("run"),
        tr("Starts a program of Qt's with the inspector in it. Comes last; all that "
           "follows the program is its own."),
        QStringLiteral("program [arguments]") };
    const QCommandLineOption help { { QStringLiteral("h"), QStringLiteral("help") },
        tr("Shows this help.") };
    const QCommandLineOption version { { QStringLiteral("v"), QStringLiteral("version") },
        tr("Shows the version.") };
    const QCommandLineOption profile { QStringLiteral("profile"), tr("Profile to start with."),
        QStringLiteral("name") };
    const QCommandLineOption profilesFile { QStringLiteral("profiles"),
        tr("File of profiles, in place of the built-in ones."), QStringLiteral("file") };
    const QCommandLineOption plugin { QStringLiteral("plugin"),
        tr("Plug-in to load in place of the default extensions; may be given several "
           "times."),
        QStringLiteral("file") };
    const QCommandLineOption selection { QStringLiteral("select"),
        tr("Node, or node and field, to select; see below for how nodes are "
           "called."),
        QStringLiteral("node[.field]") };
    const QCommandLineOption picture { QStringLiteral("picture"),
        tr("Draws the window into a file, without a display, and ends. The suffix of "
           "the file says the format: png, jpg, bmp..."),
        QStringLiteral("file") };
    const QCommandLineOption size { QStringLiteral("size"), tr("Size of the picture in pixels."),
        QStringLiteral("widthxheight") };
    const QCommandLineOption list { QStringLiteral("list"),
        tr("Prints all nodes and their fields.") };
    const QCommandLineOption verbose { QStringLiteral("verbose"),
        tr("Lists what is known of each field as well.") };
    const QCommandLineOption get { QStringLiteral("get"), tr("Prints the value of a field."),
        QStringLiteral("node.field") };
    const QCommandLineOption set { QStringLiteral("set"),
        tr("Gives a field a value; needs --save or --run."), QStringLiteral("node.field=text") };
    const QCommandLineOption save { QStringLiteral("save"),
        tr("Saves the scene into a file, which may be the scene's own."), QStringLiteral("file") };
    const QCommandLineOption after { QStringLiteral("after"),
        tr("Looks into a program so long after its start, in place of when it has "
           "shown its windows; needs --run."),
        QStringLiteral("seconds") };
};
