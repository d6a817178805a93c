// SPDX-License-Identifier: BSD-3-Clause
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString sample = QStringLiteral(CORVANE_SCENES "/all_fields.json");

struct Answer {
    int exitCode = -1;
    QString out;
    QString error;
};

} // namespace

/// Runs the program as a script would, without a display.
class TestCommandLine : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".*"_s)); }
    void answers_data();
    void answers();
    void drawsPictures_data();
    void drawsPictures();

private:
    Answer run(const QStringList& arguments);

    QTemporaryDir m_folder;
};

Answer TestCommandLine::run(const QStringList& arguments)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const QString& name : { u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s, u"QT_QPA_PLATFORM"_s })
        environment.remove(name);
    environment.insert(u"XDG_CONFIG_HOME"_s, m_folder.filePath(u"config"_s));
    QProcess program;
    program.setProcessEnvironment(environment);
    program.setWorkingDirectory(m_folder.path());
    program.start(QStringLiteral(CORVANE_PROGRAM), arguments);
    if (!program.waitForFinished(60000) || program.exitStatus() != QProcess::NormalExit)
        return { -1, QString(), program.errorString() };
    return { program.exitCode(), QString::fromUtf8(program.readAllStandardOutput()),
        QString::fromUtf8(program.readAllStandardError()) };
}

void TestCommandLine::answers_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("outPart");
    QTest::addColumn<QString>("errorPart");
    const auto refused = [](const char* name, const QStringList& arguments, const QString& part) {
        QTest::newRow(name) << arguments << 2 << QString() << part;
    };
    // Everything behind the options would need a window; a picture needs none.
    const auto refusedLater
        = [&refused](const char* name, QStringList arguments, const QString& part) {
              refused(name, arguments << u"--picture"_s << u"refused.png"_s, part);
          };
    QTest::newRow("help") << QStringList { u"--help"_s } << 0 << u"--select"_s << QString();
    QTest::newRow("version") << QStringList { u"--version"_s } << 0 << u"corvane 1."_s << QString();
    refused("unknown option", { u"--colour"_s }, u"'colour'"_s);
    refused("option without its value", { u"--select"_s }, u"'--select'"_s);
    refused("option with an empty value", { u"--picture="_s }, u"--picture"_s);
    refused("two scenes", { sample, u"b.json"_s }, u"b.json"_s);
    refusedLater("missing scene", { u"missing.json"_s }, u"missing.json: "_s);
    refusedLater("no scene", { QStringLiteral(CORVANE_SCENES "/make_station.py") }, u":1:1:"_s);
    refusedLater("unknown profile", { u"--profile"_s, u"Nobody"_s }, u"Everything, Fields"_s);
    refusedLater("missing profiles", { u"--profiles"_s, u"missing.json"_s }, u"missing.json: "_s);
    refusedLater("missing plug-in", { u"--plugin"_s, u"missing.so"_s }, u"missing.so"_s);
    refusedLater("unknown node", { sample, u"--select"_s, u"Nobody.on"_s }, u"\"Nobody\""_s);
    refusedLater("unknown field", { sample, u"--select"_s, u"Oak.on"_s }, u"\"on\""_s);
    refused("picture that can't be written", { sample, u"--picture"_s, u"missing/a.png"_s },
        u"missing/a.png: "_s);
}

void TestCommandLine::answers()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, outPart);
    QFETCH(QString, errorPart);
    const Answer answer = run(arguments);
    QVERIFY2(answer.out.contains(outPart), qPrintable(answer.out));
    QVERIFY2(answer.error.contains(errorPart), qPrintable(answer.error));
    QTEST(answer.exitCode, "exitCode");
    QVERIFY(!QFileInfo::exists(m_folder.filePath(u"refused.png"_s)));
}

void TestCommandLine::drawsPictures_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("starter") << QStringList {};
    QTest::newRow("field") << QStringList { sample, u"--select"_s, u"Desk lamp.intensity"_s };
    QTest::newRow("field by type")
        << QStringList { sample, u"--select"_s, u"PointLight.intensity"_s };
    QTest::newRow("plug-ins") << QStringList { u"--plugin"_s, QStringLiteral(CORVANE_PLUGIN),
        u"--plugin"_s, QStringLiteral(CORVANE_EXAMPLE_PLUGIN) };
    QTest::newRow("toolkit's own option") << QStringList { u"-style"_s, u"windows"_s };
    QTest::newRow("profile") << QStringList { sample, u"--profile"_s, u"Console"_s };
}

void TestCommandLine::drawsPictures()
{
    QFETCH(QStringList, arguments);
    const QString picture = m_folder.filePath(u"picture.png"_s);
    QFile::remove(picture);
    const Answer answer = run(arguments << u"--picture"_s << picture);
    QVERIFY2(answer.exitCode == 0, qPrintable(answer.error));
    // All that may stand there is what Qt says of the platform and of its surroundings.
    const QRegularExpression complaint(
        u"^(?!.*does not support|QStandardPaths: ).+$"_s, QRegularExpression::MultilineOption);
    QVERIFY2(!answer.error.contains(complaint), qPrintable(answer.error));
    QVERIFY2(answer.out.endsWith(u"Wrote "_s + picture + u'\n'), qPrintable(answer.out));
    const QImage image(picture, "PNG");
    QCOMPARE(image.size(), QSize(1280, 800));
    // Something was drawn.
    QVERIFY(image.convertToFormat(QImage::Format_Indexed8).colorCount() > 8);
    // A picture leaves the person's own window as it was.
    QVERIFY(!QFileInfo::exists(m_folder.filePath(u"config/Orbel"_s)));
}

QTEST_GUILESS_MAIN(TestCommandLine)
#include "test_command_line.moc"
