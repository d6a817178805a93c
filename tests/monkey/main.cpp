// SPDX-License-Identifier: BSD-3-Clause
// Uses the inspector as somebody who knows nothing of it: at random, with mouse and keys, while the
// program around it does what programs do. See docs/testing.md.
#include "PlatformFault.h"
#include "Player.h"
#include "Rounds.h"
#include "Soak.h"

#include <QApplication>
#include <QCommandLineParser>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

/// A warning of the toolkit's is a fault like any other.
void judge(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    const bool isHarmless = type == QtDebugMsg || type == QtInfoMsg
        || message.startsWith("This plugin does not support"_L1) // the offscreen platform's
        // The X11 platform's, when a window comes back before the server has taken it away.
        || message.contains("QXcbWindow::setNetWmStateOnUnmappedWindow"_L1);
    if (!isHarmless)
        Player::fail(u"warning: "_s + message);
}

std::vector<int> numbersIn(const QString& list)
{
    std::vector<int> numbers;
    for (const QString& number : list.split(u',', Qt::SkipEmptyParts))
        numbers.push_back(number.toInt());
    return numbers;
}

/// All that may differ between rounds follows from the seed.
int play(quint64 seed, const QString& list, int plantedStep)
{
    qInstallMessageHandler(judge);
    PlatformFault::ignore();
    {
        Stage stage(seed % 4 < 2 ? Stage::Role::Program : Stage::Role::Guest);
        Player player(stage, seed % 2 ? Player::Cast::PersonAlone : Player::Cast::PersonAndScene);
        player.plantFault(plantedStep);
        const std::vector<int> steps = numbersIn(list);
        player.run(seed, steps);
        std::printf("played %zu steps, compared %d times\n", steps.size(), player.comparisons());
    }
    if (!QApplication::topLevelWidgets().isEmpty())
        Player::fail(
            u"a window is left: "_s + Targets::path(QApplication::topLevelWidgets().constFirst()));
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);

    QCommandLineParser parser;
    parser.setApplicationDescription(u"Uses the inspector at random until something breaks."_s);
    parser.addHelpOption();
    const QCommandLineOption seed(u"seed"_s,
        u"Begins with this seed; the next round takes the next one."_s, u"number"_s, u"1"_s);
    const QCommandLineOption seconds(
        u"seconds"_s, u"Begins no further round after that time."_s, u"number"_s, u"60"_s);
    const QCommandLineOption steps(u"steps"_s, u"Steps of a round."_s, u"number"_s, u"200"_s);
    const QCommandLineOption list(
        u"play"_s, u"Plays these steps of the seed's round and nothing else."_s, u"numbers"_s);
    const QCommandLineOption planted(u"plant"_s,
        u"Writes behind the person's back before this step, which must be found."_s, u"number"_s,
        u"-1"_s);
    const QCommandLineOption soak(u"soak"_s,
        u"Plays for so many minutes in one process beside a scene that moves, and fails if anything grows."_s,
        u"minutes"_s);
    parser.addOptions({ seed, seconds, steps, list, planted, soak });
    parser.process(application);

    const quint64 first = parser.value(seed).toULongLong();
    if (parser.isSet(list))
        return play(first, parser.value(list), parser.value(planted).toInt());
    if (parser.isSet(soak)) {
        qInstallMessageHandler(judge);
        return Soak(first).run(parser.value(soak).toDouble()) ? 0 : 1;
    }
    const Rounds rounds(parser.value(steps).toInt(), parser.value(planted).toInt());
    return rounds.run(first, parser.value(seconds).toInt()) ? 0 : 1;
}
