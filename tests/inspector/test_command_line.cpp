// SPDX-License-Identifier: BSD-3-Clause
#include "TextRows.h"

#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

/// Runs the program as a script would, without a display, in the folder of the sample scenes.
class TestCommandLine : public QObject {
    Q_OBJECT

private Q_SLOTS:
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
            { "--picture|missing/a.png", "missing/a.png: ", "2" }, { "", "Wrote " },
            { "all_fields.json|--select|PointLight.intensity", "Wrote " },
            { "--plugin|" CORVANE_PLUGIN "|--plugin|" CORVANE_EXAMPLE_PLUGIN, "Wrote " },
            { "-style|windows", "Wrote " } }); // the toolkit's own
    }
    void answers()
    {
        const auto [arguments, message, status] = textRow<3>();
        const int exitCode = status.toInt();
        const QTemporaryDir folder;
        const QString picture = folder.filePath(u"picture.png"_s);
        // No display, and none of the toolkit's switches, some of which scale the picture or write
        // to the standard error stream.
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const QString& name : environment.keys()) {
            if (name == u"DISPLAY" || name == u"WAYLAND_DISPLAY" || name.startsWith(u"QT_"))
                environment.remove(name);
        }
        environment.insert(u"XDG_CONFIG_HOME"_s, folder.path());
        QProcess program;
        program.setProcessEnvironment(environment);
        program.setWorkingDirectory(QStringLiteral(CORVANE_SCENES));
        // Everything behind the options would need a window; a picture needs none.
        program.start(QStringLiteral(CORVANE_PROGRAM),
            QStringList { u"--picture"_s, picture } + arguments.split(u'|', Qt::SkipEmptyParts));
        // However long a busy machine takes; what hangs is ended from outside.
        QVERIFY2(program.waitForFinished(-1), qPrintable(program.errorString()));
        const QString out = QString::fromUtf8(program.readAllStandardOutput());
        const QString error = QString::fromUtf8(program.readAllStandardError());
        QVERIFY2(program.exitStatus() == QProcess::NormalExit && program.exitCode() == exitCode,
            qPrintable(u"%1: %2"_s.arg(program.exitCode()).arg(out + error)));
        QVERIFY2((exitCode == 0 ? out : error).contains(message), qPrintable(out + error));

        const QImage image(picture, "PNG");
        QCOMPARE(!image.isNull(), message == u"Wrote "_s);
        if (image.isNull())
            return;
        QCOMPARE(image.size(), QSize(1280, 800));
        // Something was drawn.
        QVERIFY(image.convertToFormat(QImage::Format_Indexed8).colorCount() > 8);
        // All that may stand there is what Qt says of the platform and of its surroundings.
        const QRegularExpression complaint(
            u"^(?!.*does not support|QStandardPaths: ).+$"_s, QRegularExpression::MultilineOption);
        QVERIFY2(!error.contains(complaint), qPrintable(error));
        // A picture leaves the person's own window as it was.
        QVERIFY(!QFileInfo::exists(folder.filePath(u"Orbel"_s)));
    }
};

QTEST_GUILESS_MAIN(TestCommandLine)
#include "test_command_line.moc"
