// SPDX-License-Identifier: BSD-3-Clause
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// What a program has printed with a driver in it, line by line, and how it has ended.
struct Result {
    QStringList lines;
    int status = -1;
    bool crashed = true;

    QStringList starting(const QString& word) const
    {
        return lines.filter(QRegularExpression(u'^' + word));
    }
    /// A number that is named in the summary.
    int count(const QString& name) const
    {
        const QRegularExpression number(u"\\b%1 (\\d+)"_s.arg(name));
        return number.match(lines.filter(number).value(0)).captured(1).toInt();
    }
    QByteArray text() const { return lines.join(u'\n').toLocal8Bit(); }
};

enum class Inspector { Absent, Present };

Result drive(Inspector inspector, const QString& task, const QStringList& command)
{
    const QTemporaryDir home;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"XDG_CONFIG_HOME"_s, home.path());
    environment.insert(u"XDG_DATA_HOME"_s, home.path());
    environment.insert(u"LD_PRELOAD"_s, QStringLiteral(CORVANE_DRIVER));
    environment.insert(u"CORVANE_DRIVE"_s, task);
    environment.insert(u"LIBGL_ALWAYS_SOFTWARE"_s, u"1"_s);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    if (inspector == Inspector::Present)
        process.start(QStringLiteral(CORVANE_PROGRAM), QStringList { u"--run"_s } + command);
    else
        process.start(command.front(), command.mid(1));
    process.waitForFinished(-1); // however long a busy machine takes
    return { QString::fromUtf8(process.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts),
        process.exitCode(), process.exitStatus() == QProcess::CrashExit };
}

/// Whoever drives ends with a report; what Qt warns of is in it.
bool isClean(const Result& result, const Result& alone)
{
    if (result.crashed || result.status != 0)
        return false;
    const QStringList known = alone.starting(u"warning: "_s);
    const QStringList warnings = result.starting(u"warning: "_s);
    return std::all_of(warnings.begin(), warnings.end(),
        [&known](const QString& warning) { return known.contains(warning); });
}

} // namespace

/// Programs of others, driven with mouse and keys while they are inspected.
class TestPrograms : public QObject {
    Q_OBJECT

    static void addPrograms()
    {
        QTest::addColumn<QStringList>("command");
        QTest::addColumn<int>("least"); // that must be met with, or the road has got thin
    }
    static void addRow(const char* name, const QStringList& command, int least)
    {
        QTest::addRow("%s", name) << command << least;
    }

private Q_SLOTS:
    void everyObjectOpens_data()
    {
        addPrograms();
        addRow("designer", designer, 600);
        addRow("linguist", linguist, 400);
    }
    void everyObjectOpens()
    {
        QFETCH(const QStringList, command);
        QFETCH(const int, least);
        const Result alone = drive(Inspector::Absent, u"alone"_s, command);
        QVERIFY2(!alone.crashed && alone.status == 0, alone.text());
        const Result result = drive(Inspector::Present, u"walk"_s, command);
        QVERIFY2(isClean(result, alone), result.text());
        QVERIFY2(result.count(u"objects"_s) >= least, result.text());
        QVERIFY2(result.count(u"editors"_s) == result.count(u"fields"_s), result.text());
    }

    void everySafePropertyIsEditedAndBack_data()
    {
        addPrograms();
        addRow("designer", designer, 850);
        addRow("linguist", linguist, 400);
    }
    void everySafePropertyIsEditedAndBack()
    {
        QFETCH(const QStringList, command);
        QFETCH(const int, least);
        const Result alone = drive(Inspector::Absent, u"alone"_s, command);
        const Result result = drive(Inspector::Present, u"edit"_s, command);
        QVERIFY2(isClean(result, alone), result.text());
        QVERIFY2(result.count(u"edited"_s) >= least, result.text());
    }

#ifdef CORVANE_TORUS
    void aSliderChangesWhatQt3DDraws()
    {
        const QStringList torus { QStringLiteral(CORVANE_TORUS) };
        const Result alone = drive(Inspector::Absent, u"alone"_s, torus);
        const Result result = drive(Inspector::Present, u"picture"_s, torus);
        QVERIFY2(isClean(result, alone), result.text());
        QCOMPARE(result.count(u"changes"_s), 5);
    }
#endif

private:
    const QStringList designer { QStringLiteral(CORVANE_DESIGNER),
        QStringLiteral(CORVANE_DESIGNER_FORM) };
    const QStringList linguist { QStringLiteral(CORVANE_LINGUIST) };
};

QTEST_GUILESS_MAIN(TestPrograms)
#include "test_programs.moc"
