// SPDX-License-Identifier: BSD-3-Clause
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString guest = QStringLiteral(CORVANE_GUEST);

/// What a run has printed, and how it has ended.
struct Result {
    QString out;
    QString error;
    int status = 0;
    bool crashed = false;
};

Result run(const QStringList& arguments, const QString& preload = QString())
{
    const QTemporaryDir settings;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    environment.insert(u"XDG_CONFIG_HOME"_s, settings.path());
    if (!preload.isEmpty())
        environment.insert(u"LD_PRELOAD"_s, preload);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(CORVANE_PROGRAM), QStringList { u"--run"_s } + arguments);
    process.waitForFinished(-1); // however long a busy machine takes
    return { QString::fromUtf8(process.readAllStandardOutput()),
        QString::fromUtf8(process.readAllStandardError()), process.exitCode(),
        process.exitStatus() == QProcess::CrashExit };
}

} // namespace

class TestRun : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void theObjectsOfAProgramAreShown()
    {
        const Result result = run({ guest, u"widgets"_s });
        QCOMPARE(result.out,
            u"roots guest window\n0 gestures\nselected 1, 0 clicks\n1 clicks\nsecond 1\ngone 1\npreload \n"_s);
        QCOMPARE(result.status, 7);
    }

    void whatTheCallerPreloadsStays()
    {
        const Result result = run({ guest, u"widgets"_s }, u"libm.so.6 libc.so.6"_s);
        QVERIFY2(result.out.endsWith(u"preload libm.so.6:libc.so.6\n"_s), qPrintable(result.out));
    }

    void endings_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("message");
        QTest::addColumn<int>("status");
        QTest::addRow("no program") << QStringList() << u"--run needs the name of a program"_s << 2;
        QTest::addRow("missing") << QStringList { u"/no/such"_s } << u"corvane: /no/such: "_s
                                 << 127;
        QTest::addRow("folder") << QStringList { u"/"_s } << u"corvane: /: "_s << 126;
        QTest::addRow("not of Qt") << QStringList { u"/bin/false"_s }
                                   << u"has ended without an application object of Qt 6"_s << 1;
        QTest::addRow("without widgets")
            << QStringList { guest, u"core"_s } << u"has no QApplication"_s << 3;
    }
    void endings()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, message);
        QFETCH(int, status);
        const Result result = run(arguments);
        QVERIFY2(result.error.contains(message), qPrintable(result.error));
        QCOMPARE(result.error.count(u'\n'), 1);
        QCOMPARE(result.status, status);
    }

    void aSignalEndsTheProgramItself() { QVERIFY(run({ guest, u"abort"_s }).crashed); }
};

QTEST_GUILESS_MAIN(TestRun)
#include "test_run.moc"
