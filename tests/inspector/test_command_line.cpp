// SPDX-License-Identifier: BSD-3-Clause
#include "TextRows.h"

#include <QImage>
#include <QImageReader>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

/// What the program answers to a script.
class TestCommandLine : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void answers_data()
    {
        // Arguments parted by bars, a text of the answer, and the status if that isn't 0.
        addTextRows({ { "--help", "--select" }, { "--version", "corvane 1." },
            { "--colour", "'colour'", "2" }, { "--select", "'--select'", "2" },
            { "all_fields.json|b.json", "b.json", "2" },
            { "/dev/zero", "/dev/zero: this is a device, not a file", "2" },
            { "--profile|Nobody", "\"Nobody\"; there are: Everything, Fields", "2" },
            { "--profiles|missing.json", "missing.json: ", "2" },
            { "--plugin|station.json", "station.json: this is not a library", "2" },
            { "all_fields.json|--select|No.body.on", "\"No.body\"", "2" },
            { "all_fields.json|--select|Oak.on", "\"on\"", "2" },
            { "all_fields.json|--select|Ok", "did you mean \"Oak\"?", "2" },
            { "all_fields.json|--select|Group", "\n  Workshop/Table\n", "2" },
            { "--picture|missing/a.png", "missing/a.png: ", "2" },
            { "--picture|a.odd", "a.odd: pictures are written as bmp, ", "2" },
            { "--size|1280x", "Bad size '1280x'", "2" }, { "--size|%2x5", "Bad size '%2x5'", "2" },
            { "--size|0x5", "'0x5'", "2" }, { "--size|16385x5", "up to 16384 expected", "2" },
            { "-platform|nowhere", "no Qt platform plugin could be initialized", "2" },
            { "", "Wrote " }, { "all_fields.json|--select|pointlight.INTENSITY", "Wrote " },
            { "--plugin|" CORVANE_PLUGIN "|--plugin|" CORVANE_EXAMPLE_PLUGIN, "Wrote " },
            { "-style|windows", "Wrote " } }); // the toolkit's own
    }
    void answers()
    {
        const auto [arguments, message, status] = textRow<3>();
        // Everything behind the options would need a window; a picture needs none.
        const Answer answer = run(QStringList { u"--picture"_s, inFolder(u"picture.png"_s) }
            + arguments.split(u'|', Qt::SkipEmptyParts));
        QCOMPARE(answer.status, status.toInt());
        QVERIFY2((answer.status == 0 ? answer.out : answer.error).contains(message),
            qPrintable(answer.out + answer.error));

        const QImage image(inFolder(u"picture.png"_s), "PNG");
        QCOMPARE(!image.isNull(), message == u"Wrote "_s);
        if (image.isNull())
            return;
        QCOMPARE(image.size(), QSize(1280, 800));
        // Something was drawn.
        QVERIFY(image.convertToFormat(QImage::Format_Indexed8).colorCount() > 8);
        // The toolkit has something to say, of no use to whoever wanted a picture.
        QCOMPARE(answer.error, QString());
        // A picture leaves the person's own window as it was.
        QVERIFY(!QFileInfo::exists(inFolder(u"Orbel"_s)));
    }

    void picturesAreOfTheKindAndSizeAskedFor_data()
    {
        addTextRows(
            { { "a.png", "png" }, { "a.JPG", "jpeg" }, { "a.bmp", "bmp" }, { "a", "png" } });
    }
    void picturesAreOfTheKindAndSizeAskedFor()
    {
        const auto [name, format] = textRow<2>();
        const Answer answer = run({ u"--picture"_s, inFolder(name), u"--size=300x200"_s });
        QVERIFY2(answer.status == 0, qPrintable(answer.error));
        QImageReader reader(inFolder(name));
        reader.setDecideFormatFromContent(true);
        QCOMPARE(QString::fromLatin1(reader.format()), format);
        // Smaller than the window of a person could be made.
        QCOMPARE(reader.size(), QSize(300, 200));
    }

    void aWindowNeedsADisplay_data()
    {
        addTextRows({ { "" }, { "DISPLAY", ":4711" }, { "QT_QPA_PLATFORM", "xcb" },
            { "WAYLAND_DISPLAY", "wayland-4711" }, { "QT_QPA_PLATFORM", "wayland;xcb" },
            { "QT_QPA_PLATFORM", "nowhere" } });
    }
    void aWindowNeedsADisplay()
    {
        const auto [variable, value] = textRow<2>();
        const Answer answer = run({}, variable, value);
        QVERIFY2(
            answer.status == 2 && answer.error.contains(u"--picture"_s), qPrintable(answer.error));
        // A picture is drawn all the same.
        QCOMPARE(run({ u"--picture"_s, inFolder(u"a.png"_s) }, variable, value).status, 0);
    }

    void scripts_data()
    {
        // Arguments, the whole answer or a part of the complaint, and the status.
        addTextRows({ { "all_fields.json|--get|Oak.transparency", "0.05\n" },
            { "--get|Sun.on|--get|/Scene/paint.SHININESS", "TRUE\n[ 0.2 ]\n" },
            { "--get|Sun.on|--set|Sun.on=0|--get=Sun.on|--save|%1", "TRUE\nFALSE\n" },
            { "all_fields.json|--set|Opening hours.string=\"a=b\"|--get|Text.string|--save|%1",
                "[ \"a=b\" ]\n" },
            { "all_fields.json|--set|Oak.transparency=1", "'--save FILE'", "2" },
            { "all_fields.json|--set|Oak.transparency|--save|%1", "NODE.FIELD=TEXT", "2" },
            { "all_fields.json|--get|Oak.on", "no field \"on\"", "2" },
            { "all_fields.json|--get|Oak.shininess|--set|Oak.transparency=thick|--save|%1",
                "Material \"Oak\", field transparency (SFFloat)", "2" },
            { "missing.json|--list", "missing.json: ", "2" },
            { "--list|--save|missing/a.json", "missing/a.json: ", "2" },
            { "--save|%1|--save|%1", "More than one '--save'", "2" },
            { "--get|Sun.on|--picture|%1", "'--picture'", "2" }, { "--verbose", "'--list'", "2" },
            { "--set|", "'--set'", "2" } });
    }
    void scripts()
    {
        const auto [arguments, message, status] = textRow<3>();
        const QString file = inFolder(u"saved.json"_s);
        QStringList words = arguments.split(u'|');
        words.replaceInStrings(u"%1"_s, file);
        // No platform of the toolkit's would do.
        const Answer answer = run(words, u"QT_QPA_PLATFORM"_s, u"nowhere"_s);
        QVERIFY2(answer.status == status.toInt(), qPrintable(answer.error));
        // All or nothing.
        QCOMPARE(QFileInfo::exists(file), answer.status == 0 && words.contains(file));
        if (answer.status == 0) {
            QCOMPARE(answer.out, message);
            QCOMPARE(answer.error, QString());
        } else {
            QVERIFY2(answer.error.startsWith(u"corvane: "_s) && answer.error.contains(message),
                qPrintable(answer.error));
            QCOMPARE(answer.out, QString());
        }
    }

    void aScriptSavesOverItsOwnScene()
    {
        const QString file = inFolder(u"own.json"_s);
        QVERIFY(QFile::copy(QStringLiteral(CORVANE_SCENES "/all_fields.json"), file));
        QCOMPARE(run({ file, u"--set=Oak.transparency=1"_s, u"--save"_s, file }).error, QString());
        QCOMPARE(run({ file, u"--get=Oak.transparency"_s }).out, u"1\n"_s);
        const QString list = run({ file, u"--list"_s }).out;
        QVERIFY(list.contains(u"\nWorkshop/Table/Oak.transparency\tSFFloat\t1\n"_s));
    }

private:
    struct Answer {
        QString out;
        QString error;
        int status = -1; // of a program that didn't end by itself
    };

    /// Runs the program as a script would, without a display, in the folder of the sample scenes.
    Answer run(
        const QStringList& arguments, const QString& variable = {}, const QString& value = {}) const
    {
        // None of the toolkit's switches, some of which scale the picture or ask for its messages.
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const QString& name : environment.keys()) {
            if (name == u"DISPLAY" || name == u"WAYLAND_DISPLAY" || name.startsWith(u"QT_"))
                environment.remove(name);
        }
        environment.insert(u"XDG_CONFIG_HOME"_s, m_folder->path());
        if (!variable.isEmpty())
            environment.insert(variable, value);
        QProcess program;
        program.setProcessEnvironment(environment);
        program.setWorkingDirectory(QStringLiteral(CORVANE_SCENES));
        program.start(QStringLiteral(CORVANE_PROGRAM), arguments);
        // However long a busy machine takes; what hangs is ended from outside.
        program.waitForFinished(-1);
        return { QString::fromUtf8(program.readAllStandardOutput()),
            QString::fromUtf8(program.readAllStandardError()),
            program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1 };
    }
    QString inFolder(const QString& name) const { return m_folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_folder; // of the running test
};

QTEST_GUILESS_MAIN(TestCommandLine)
#include "test_command_line.moc"
