// SPDX-License-Identifier: BSD-3-Clause
// Uses the inspector as somebody who knows nothing of it: at random, with mouse and keys, while the
// program around it does what programs do. See docs/testing.md.
#include "Player.h"
#include "Rounds.h"

#include <QApplication>
#include <QCommandLineParser>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

/// A warning of the toolkit's is a fault like any other.
void judge(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    const bool isHarmless = type == QtDebugMsg || type == QtInfoMsg
        || message.startsWith("This plugin does not support"_L1); // the offscreen platform's
    if (!isHarmless)
        Player::fail(u"warning: "_s + message);
}

int play(quint64 seed, const QString& list)
{
    std::vector<int> steps;
    for (const QString& step : list.split(u',', Qt::SkipEmptyParts))
        steps.push_back(step.toInt());
    qInstallMessageHandler(judge);
    Player(seed, std::move(steps)).run();
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
    parser.addOptions({ seed, seconds, steps, list });
    parser.process(application);

    const quint64 first = parser.value(seed).toULongLong();
    if (parser.isSet(list))
        return play(first, parser.value(list));
    return Rounds(parser.value(steps).toInt()).run(first, parser.value(seconds).toInt()) ? 0 : 1;
}
