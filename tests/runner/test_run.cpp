// SPDX-License-Identifier: BSD-3-Clause
#include "TextRows.h"

#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QString guest() { return QStringLiteral(CORVANE_GUEST); }
/// A library; empty without one.
QString sanitizer() { return QStringLiteral(CORVANE_SANITIZER); }

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
    // A file that can't be run is no program.
    QFile other(settings.filePath(u"chage"_s));
    static_cast<void>(other.open(QIODevice::WriteOnly));
    environment.insert(u"PATH"_s, settings.path() + u':' + environment.value(u"PATH"_s));
    QStringList preloaded { sanitizer(), preload };
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
        const Result result
            = corvane({ u"--select"_s, u"window"_s, u"--run"_s, guest(), u"widgets"_s });
        QCOMPARE(result.out,
            u"roots guest window Objects without a parent, on window\n0 gestures\n"
            "selected 1, 0 clicks\n1 clicks\nsecond 1\n"
            "guest second window menu Objects without a parent\ngone 1\nloose 1\ntaken 1\n"
            "back 1, selected 1, loose 1, 1 clicks\npreload %1\nasked 0\n"_s.arg(sanitizer()));
        QCOMPARE(result.status, 7);
    }

    void guests_data()
    {
        // What the program does, what it sees of it, and its status.
        addTextRows({ { "modal", "below one 1|below two 1|back 1, 1 0|own 0, 1|free 1", "0" },
            { "closing", "2 windows", "5" }, { "closing inspector", "1 windows", "5" },
            { "filtered", "row 1, 0 clicks|typed x|1 clicks", "0" },
            { "translated", "file 1|mixed 0|own XX", "0" },
            { "outline", "around 1, 1 panes|scrolled 1|out 1|moved 1|listed 0|pressed 1|gone 1",
                "0" } });
    }
    void guests()
    {
        const auto [arguments, output, status] = textRow<3>();
        const Result result = run(QStringList { guest() } + arguments.split(u' '));
        QCOMPARE(result.out.trimmed().split(u'\n'), output.split(u'|'));
        QCOMPARE(result.status, status.toInt());
    }

    void answers_data()
    {
        // What is asked, by words with bars between, the answer or a part of the complaint, and the
        // status.
        addTextRows({ { "--get|window/button.text", "\"Go\"\n", "0" },
            { "--get|QPushButton.text", "\"Go\"\n", "0" },
            { "--set|button.text=Stop|--get|button.text|--set|window.minimumWidth=700|--get|"
              "window.width",
                "\"Stop\"\n700\n", "0" },
            { "--get|Objects without a parent/action.text", "\"Loose\"\n", "0" },
            { "--after|0.1|--get|guest.objectName", "\"guest\"\n", "0" },
            { "--after|1000|--get|guest.objectName", "has ended before it could be looked into",
                "2" },
            { "--get|button.text|--get|buton.text", "did you mean \"button\"?", "2" },
            { "--set|window.size=1 1|--set|window.x=3", "window.x: ", "2" },
            { "--select|button.text|--picture|%1/a.png", "Wrote %1/a.png\n", "0" },
            { "--select|buton|--picture|%1/a.png", "did you mean \"button\"?", "2" },
            { "--list|--select|button", "'--select'", "2" }, { "scene.json", "'scene.json'", "2" },
            { "--profile|Fields", "'--profile' means nothing", "2" },
            { "--after|soon", "Bad time 'soon'", "2" } });
    }
    void answers()
    {
        auto [options, message, statusText] = textRow<3>();
        const int status = statusText.toInt();
        const QTemporaryDir folder;
        QStringList words = options.split(u'|');
        words.replaceInStrings(u"%1"_s, folder.path());
        const Result result = corvane(words + QStringList { u"--run"_s, guest(), u"quiet"_s });
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
        const Result result = corvane({ u"--list"_s, u"--run"_s, guest(), u"quiet"_s });
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
        if (!sanitizer().isEmpty())
            QSKIP("shells hang with the sanitizer in them");
        QFETCH(QByteArray, script);
        QFETCH(QString, error);
        const QTemporaryDir folder;
        QFile file(folder.filePath(u"start"_s));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(script) > 0);
        QVERIFY(file.setPermissions(QFile::ReadUser | QFile::ExeUser));
        file.close();
        const Result result = corvane(
            { u"--get"_s, u"button.text"_s, u"--run"_s, file.fileName(), guest(), u"quiet"_s });
        QCOMPARE(result.out, error.isEmpty() ? u"\"Go\"\n"_s : QString());
        QVERIFY2(result.error.endsWith(error) && !result.error.contains(u"has ended"_s),
            qPrintable(result.error));
    }

    void whatTheCallerPreloadsStays()
    {
        const Result result = run({ guest(), u"widgets"_s }, u"libm.so.6 libc.so.6"_s);
        QVERIFY2(result.out.contains(u"libm.so.6:libc.so.6\n"_s), qPrintable(result.out));
    }

    void endings_data()
    {
        addTextRows({ { "", "--run needs the name of a program", "2" },
            { "/no/such", "corvane: /no/such: there is no such program", "127" },
            { "no-such-program", "there is no such program", "127" },
            { "/", "corvane: /: this is a folder", "126" },
            { CORVANE_SOURCE, "Permission denied", "126" },
            { "/sbin/ldconfig", "it is linked statically", "126" },
            { "chage", "other rights than yours", "126" },
            { CORVANE_OLD_GUEST, "it is a program of Qt 5", "126" },
            { "/bin/false", "has ended without an application object of Qt 6", "1" },
            { CORVANE_GUEST "|core", "has no QApplication", "3" } });
    }
    void endings()
    {
        const auto [arguments, message, status] = textRow<3>();
        const Result result = run(arguments.split(u'|', Qt::SkipEmptyParts));
        QVERIFY2(result.error.contains(message), qPrintable(result.error));
        QCOMPARE(result.error.count(u'\n'), 1);
        QCOMPARE(result.status, status.toInt());
    }

    void aSignalEndsTheProgramItself() { QVERIFY(run({ guest(), u"abort"_s }).crashed); }
};

QTEST_GUILESS_MAIN(TestRun)
#include "test_run.moc"
