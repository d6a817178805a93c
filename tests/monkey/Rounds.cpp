// SPDX-License-Identifier: BSD-3-Clause
#include "Rounds.h"

#include "PlatformFault.h"
#include "Shortening.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QRegularExpression>

#include <algorithm>
#include <cstdio>
#include <numeric>

using namespace Qt::StringLiterals;

namespace {

constexpr int longestSilence = 60000; // milliseconds without a step
constexpr int mostTries = 150; // to cut one round down

QString listOf(const std::vector<int>& steps)
{
    QStringList numbers;
    for (const int step : steps)
        numbers += QString::number(step);
    return numbers.join(u',');
}

/// The first lines that say what happened.
QString reportIn(const QString& output)
{
    static const QRegularExpression report(
        u"^(FOUND|.*ERROR: \\w+Sanitizer|.*runtime error:|ASSERT).*$"_s,
        QRegularExpression::MultilineOption);
    return report.match(output).captured(0);
}

/// Without places in memory and values.
QString kindOf(const QString& fault)
{
    static const QRegularExpression detail(u"==\\d+==|0x[0-9a-f]+|\\d+|\"[^\"]*\""_s);
    return QString(fault).remove(detail).left(60);
}

} // namespace

Rounds::Outcome Rounds::play(quint64 seed, const std::vector<int>& steps) const
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QCoreApplication::applicationFilePath(),
        { u"--seed"_s, QString::number(seed), u"--play"_s, listOf(steps), u"--plant"_s,
            QString::number(m_plantedStep) });
    Outcome outcome;
    while (process.state() != QProcess::NotRunning) {
        if (!process.waitForReadyRead(longestSilence) && process.state() == QProcess::Running) {
            outcome.fault = u"nothing happens any more"_s;
            process.kill();
        }
        outcome.output += QString::fromUtf8(process.readAll());
        if (!process.isOpen())
            break;
        process.waitForFinished(0);
    }
    outcome.output += QString::fromUtf8(process.readAll());
    const bool isPlatforms = process.exitStatus() == QProcess::NormalExit
        && process.exitCode() == PlatformFault::status;
    if (isPlatforms)
        outcome.output += u"\nbroken off, since the offscreen platform has crashed"_s;
    else if (outcome.fault.isEmpty()
        && (process.exitStatus() == QProcess::CrashExit || process.exitCode() != 0)) {
        outcome.fault = reportIn(outcome.output);
        if (outcome.fault.isEmpty())
            outcome.fault = process.exitStatus() == QProcess::CrashExit
                ? u"the process died of signal %1"_s.arg(process.exitCode())
                : u"the process ended with status %1"_s.arg(process.exitCode());
    }
    outcome.kind = kindOf(outcome.fault);
    static const QRegularExpression begun(u"^step (\\d+):"_s, QRegularExpression::MultilineOption);
    for (auto found = begun.globalMatch(outcome.output); found.hasNext();)
        outcome.lastStep = found.next().captured(1).toInt();
    static const QRegularExpression compared(u"compared (\\d+) times"_s);
    outcome.comparisons = compared.match(outcome.output).captured(1).toInt();
    return outcome;
}

bool Rounds::run(quint64 seed, int seconds) const
{
    QElapsedTimer clock;
    clock.start();
    std::vector<int> steps(std::size_t(m_stepsInRound), 0);
    std::iota(steps.begin(), steps.end(), 0);
    int rounds = 0;
    int comparisons = 0;
    do {
        const Outcome outcome = play(seed, steps);
        ++rounds;
        if (!outcome.fault.isEmpty()) {
            std::printf("seed %llu: %s\n", static_cast<unsigned long long>(seed),
                qPrintable(outcome.fault));
            shorten(seed, outcome, steps);
            return false;
        }
        std::printf("seed %llu: %s\n", static_cast<unsigned long long>(seed),
            qPrintable(outcome.output.trimmed().section(u'\n', -1)));
        std::fflush(stdout);
        comparisons += outcome.comparisons;
        ++seed;
    } while (!clock.hasExpired(qint64(seconds) * 1000));
    std::printf("%d rounds without a fault, %d comparisons of an editor\n", rounds, comparisons);
    return comparisons > 0;
}

void Rounds::shorten(quint64 seed, const Outcome& outcome, std::vector<int> steps) const
{
    std::fflush(stdout);
    // What was not begun has no part in it.
    steps.erase(std::upper_bound(steps.begin(), steps.end(), outcome.lastStep), steps.end());
    int tries = 0;
    Outcome last = outcome;
    steps = shortened(
        std::move(steps),
        [&](const std::vector<int>& list) {
            ++tries;
            const Outcome tried = play(seed, list);
            if (tried.fault.isEmpty() || tried.kind != outcome.kind)
                return false;
            last = tried;
            return true;
        },
        mostTries);
    std::printf("\n%s\nThe shortest list, after %d tries:\n  --seed %llu --play %s\n",
        qPrintable(last.output.trimmed()), tries, static_cast<unsigned long long>(seed),
        qPrintable(listOf(steps)));
}
