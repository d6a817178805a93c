// SPDX-License-Identifier: BSD-3-Clause
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString guest = QStringLiteral(CORVANE_GUEST);
const QString sanitizer = QStringLiteral(CORVANE_SANITIZER); // a library; empty without one

/// What a run has printed, and how it has ended.
struct Result {
    QString out;
    QString error;
    int status = 0;
    bool crashed = false;
};

Result corvane(const QStringList& arguments, const QString& preload = QString())
{
    const QTemporaryDir settings;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    environment.insert(u"XDG_CONFIG_HOME"_s, settings.path());
    QStringList preloaded { sanitizer, preload };
    preloaded.removeAll(QString());
    if (!preloaded.isEmpty())
        environment.insert(u"LD_PRELOAD"_s, preloaded.join(u':'));
    // Shells and other programs of the system aren't ours to mend.
    environment.insert(u"ASAN_OPTIONS"_s, u"detect_leaks=0"_s);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(CORVANE_PROGRAM), arguments);
    process.waitForFinished(-1); // however long a busy machine takes
    return { QString::fromUtf8(process.readAllStandardOutput()),
        QString::fromUtf8(process.readAllStandardError()), process.exitCode(),
        process.exitStatus() == QProcess::CrashExit };
}

Result run(const QStringList& arguments, const QString& preload = QString())
{
    return corvane(QStringList { u"--run"_s } + arguments, preload);
}

} // namespace

class TestRun : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void theObjectsOfAProgramAreShown()
    {
        const Result result = run({ guest, u"widgets"_s });
        QCOMPARE(result.out,
            u"roots guest window Objects without a parent\n0 gestures\nselected 1, 0 clicks\n1 clicks\nsecond 1\nguest second window menu Objects without a parent\ngone 1\nloose 1\ntaken 1\nback 1, selected 1, loose 1, 1 clicks\npreload %1\n"_s
                .arg(sanitizer));
        QCOMPARE(result.status, 7);
    }

    void guests_data()
    {
        // What the program does, what it sees of it, and its status.
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("output");
        QTest::addColumn<int>("status");
        QTest::addRow("modal windows don't mix")
            << QStringList { u"modal"_s }
            << u"below one 1|below two 1|back 1, 1 0|own 0, 1|free 1"_s << 0;
        QTest::addRow("the program's window closes")
            << QStringList { u"closing"_s } << u"2 windows"_s << 5;
        QTest::addRow("the inspector closes first")
            << QStringList { u"closing"_s, u"inspector"_s } << u"1 windows"_s << 5;
        QTest::addRow("filters of the application stay with the program")
            << QStringList { u"filtered"_s } << u"row 1, 0 clicks|typed x|1 clicks"_s << 0;
        QTest::addRow("translators stay with the program")
            << QStringList { u"translated"_s } << u"file 1|mixed 0|own XX"_s << 0;
        QTest::addRow("the selected widget is outlined")
            << QStringList { u"outline"_s }
            << u"around 1, 1 panes|scrolled 1|out 1|moved 1|listed 0|pressed 1|gone 1"_s << 0;
    }
    void guests()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, output);
        QFETCH(int, status);
        const Result result = run(QStringList { guest } + arguments);
        QCOMPARE(result.out.trimmed().split(u'\n'), output.split(u'|'));
        QCOMPARE(result.status, status);
    }

    void answers_data()
    {
        // What is asked, by words with bars between, the answer or a part of the complaint, and the
        // status.
        QTest::addColumn<QString>("options");
        QTest::addColumn<QString>("message");
        QTest::addColumn<int>("status");
        QTest::addRow("get") << u"--get|window/button.text"_s << u"\"Go\"\n"_s << 0;
        QTest::addRow("by class") << u"--get|QPushButton.text"_s << u"\"Go\"\n"_s << 0;
        QTest::addRow("set goes through the setter")
            << u"--set|button.text=Stop|--get|button.text|--set|window.minimumWidth=700|--get|window.width"_s
            << u"\"Stop\"\n700\n"_s << 0;
        QTest::addRow("without a parent")
            << u"--get|Objects without a parent/action.text"_s << u"\"Loose\"\n"_s << 0;
        QTest::addRow("after a time")
            << u"--after|0.1|--get|guest.objectName"_s << u"\"guest\"\n"_s << 0;
        QTest::addRow("too late") << u"--after|1000|--get|guest.objectName"_s
                                  << u"has ended before it could be looked into"_s << 2;
        QTest::addRow("no object")
            << u"--get|button.text|--get|buton.text"_s << u"did you mean \"button\"?"_s << 2;
        QTest::addRow("read-only")
            << u"--set|window.size=1 1|--set|window.x=3"_s << u"window.x: "_s << 2;
        QTest::addRow("picture") << u"--select|button.text|--picture|%1/a.png"_s
                                 << u"Wrote %1/a.png\n"_s << 0;
        QTest::addRow("nothing to draw")
            << u"--select|buton|--picture|%1/a.png"_s << u"did you mean \"button\"?"_s << 2;
        QTest::addRow("no window to select in")
            << u"--list|--select|button"_s << u"'--select'"_s << 2;
        QTest::addRow("scene") << u"scene.json"_s << u"'scene.json'"_s << 2;
        QTest::addRow("of scenes") << u"--profile|Fields"_s << u"'--profile' means nothing"_s << 2;
        QTest::addRow("bad time") << u"--after|soon"_s << u"Bad time 'soon'"_s << 2;
    }
    void answers()
    {
        QFETCH(QString, options);
        QFETCH(QString, message);
        QFETCH(int, status);
        const QTemporaryDir folder;
        QStringList words = options.split(u'|');
        words.replaceInStrings(u"%1"_s, folder.path());
        const Result result = corvane(words + QStringList { u"--run"_s, guest, u"quiet"_s });
        QVERIFY2(result.status == status, qPrintable(result.error));
        QCOMPARE(QFileInfo::exists(folder.filePath(u"a.png"_s)), message.startsWith(u"Wrote"_s));
        if (status == 0)
            QCOMPARE(result.out, message.replace(u"%1"_s, folder.path()));
        else
            QVERIFY2(result.error.contains(message), qPrintable(result.error));
        QVERIFY(status == 0 || result.out.isEmpty());
    }

    void aListHoldsTheProgramAlone()
    {
        const Result result = corvane({ u"--list"_s, u"--run"_s, guest, u"quiet"_s });
        QVERIFY(result.out.startsWith(u"guest\tQApplication\n"_s));
        QVERIFY(result.out.contains(u"\nwindow/button.text\tSFString\t\"Go\"\n"_s));
        QVERIFY(!result.out.contains(u"sceneTree"_s) && !result.out.contains(u"noise"_s));
    }

    void scriptsLeadToTheProgram_data()
    {
        QTest::addColumn<QByteArray>("script");
        QTest::addColumn<QString>("error");
        QTest::addRow("becomes it")
            << QByteArray("#!/usr/bin/env sh\ntrue\nexec \"$@\"\n") << QString();
        QTest::addRow("starts it") << QByteArray("#!/bin/bash\ntrue\n\"$@\"\ntrue\n") << QString();
        QTest::addRow("no interpreter") << QByteArray("#!/no/such/shell -x\n")
                                        << u"its interpreter /no/such/shell is missing\n"_s;
    }
    void scriptsLeadToTheProgram()
    {
        if (!sanitizer.isEmpty())
            QSKIP("shells hang with the sanitizer in them");
        QFETCH(QByteArray, script);
        QFETCH(QString, error);
        const QTemporaryDir folder;
        QFile file(folder.filePath(u"start"_s));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(script) > 0);
        QVERIFY(file.setPermissions(QFile::ReadUser | QFile::ExeUser));
        file.close();
        const Result result = corvane(
            { u"--get"_s, u"button.text"_s, u"--run"_s, file.fileName(), guest, u"quiet"_s });
        QCOMPARE(result.out, error.isEmpty() ? u"\"Go\"\n"_s : QString());
        QVERIFY2(result.error.endsWith(error) && !result.error.contains(u"has ended"_s),
            qPrintable(result.error));
    }

    void whatTheCallerPreloadsStays()
    {
        const Result result = run({ guest, u"widgets"_s }, u"libm.so.6 libc.so.6"_s);
        QVERIFY2(result.out.endsWith(u"libm.so.6:libc.so.6\n"_s), qPrintable(result.out));
    }

    void endings_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("message");
        QTest::addColumn<int>("status");
        QTest::addRow("no program") << QStringList() << u"--run needs the name of a program"_s << 2;
        QTest::addRow("missing") << QStringList { u"/no/such"_s }
                                 << u"corvane: /no/such: there is no such program"_s << 127;
        QTest::addRow("not in the path")
            << QStringList { u"no-such-program"_s } << u"there is no such program"_s << 127;
        QTest::addRow("folder") << QStringList { u"/"_s } << u"corvane: /: this is a folder"_s
                                << 126;
        QTest::addRow("not executable")
            << QStringList { QStringLiteral(CORVANE_SOURCE) } << u"Permission denied"_s << 126;
        QTest::addRow("static") << QStringList { u"/sbin/ldconfig"_s }
                                << u"it is linked statically"_s << 126;
        QTest::addRow("other rights")
            << QStringList { u"chage"_s } << u"other rights than yours"_s << 126;
        QTest::addRow("Qt 5") << QStringList { QStringLiteral(CORVANE_OLD_GUEST) }
                              << u"it is a program of Qt 5"_s << 126;
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
