// SPDX-License-Identifier: BSD-3-Clause
#include "CrvProfileReader.h"
#include "SceneDocument.h"
#include "SceneReader.h"
#include "TextRows.h"

#include <QTemporaryDir>
#include <QTest>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// In which both readers agree.
QString errorOf(const QString& fileName)
{
    SceneReader scenes;
    CrvProfileReader profiles;
    scenes.readFile(fileName);
    profiles.readFile(fileName);
    return scenes.errorText() == profiles.errorText() ? scenes.errorText() : u"differs"_s;
}

void writeFile(const QString& fileName, const QByteArray& content)
{
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("%s can't be written", qPrintable(fileName));
}

/// Lets the process have no more than so many bytes on top of what it has; gives the former limit.
rlimit limitMemory(rlim_t more)
{
    rlimit former {};
    getrlimit(RLIMIT_AS, &former);
    QFile file(u"/proc/self/statm"_s);
    const bool opened = file.open(QIODevice::ReadOnly);
    const rlim_t pages = opened ? file.readAll().split(' ').constFirst().toULong() : 0;
    const rlimit limit { pages * static_cast<rlim_t>(getpagesize()) + more, former.rlim_max };
    setrlimit(RLIMIT_AS, &limit);
    return former;
}

} // namespace

/// What all JSON files have in common, whoever reads them.
class TestJsonFiles : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(u".*"_s));
        m_folder = std::make_unique<QTemporaryDir>();
    }

    void mistakes_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("place");
        const auto row = [](const char* name, const QByteArray& json, const char* place) {
            QTest::newRow(name) << json << QString::fromLatin1(place);
        };
        row("a key without quotes", "{ a: 1}", "1:3");
        row("no comma in an object", "{\n \"a\": 1\n \"b\": 2}", "3:2");
        row("a comma too many", "[1, ]\n", "1:5");
        row("an array without end", "[1,\n", "2:1");
        row("a string without end", "{\"a\": \"b}", "1:10");
        row("a bad number", "[-]", "1:3");
        row("illegal UTF-8", "[\"\xc3\xa9\xff\"]", "1:5");
        row("text behind the document", "{}\n\n x", "3:2");
        row("too deep", "\n" + QByteArray(1100, '['), "2:1025");
    }
    void mistakes()
    {
        QFETCH(QByteArray, json);
        QFETCH(QString, place);
        const QString file = m_folder->filePath(u"bad.json"_s);
        writeFile(file, json);
        const QString start = file + u':' + place + u": "_s;
        QCOMPARE(errorOf(file).left(start.size()), start);
    }

    void notReadable_data()
    {
        addTextRows({ { "missing", "No such file or directory" }, { "empty", "the file is empty" },
            { "closed", "Permission denied" }, { "folder", "this is a directory, not a file" },
            { "link to pipe", "this is a pipe, not a file" },
            { "/dev/zero", "this is a device, not a file" },
            { "huge", "the file is too large, at most 1073741824 bytes are read" } });
    }
    void notReadable()
    {
        const auto [name, reason] = textRow<2>();
        const QDir folder(m_folder->path());
        for (const QString& made : { u"empty"_s, u"closed"_s, u"huge"_s })
            writeFile(folder.filePath(made), {});
        QFile::setPermissions(folder.filePath(u"closed"_s), {});
        QVERIFY(QFile::resize(folder.filePath(u"huge"_s), CrvJsonReader::maxFileSize + 1));
        QVERIFY(folder.mkdir(u"folder"_s));
        QCOMPARE(mkfifo(QFile::encodeName(folder.filePath(u"pipe"_s)), 0600), 0);
        QFile::link(u"pipe"_s, folder.filePath(u"link to pipe"_s));

        if (name == u"closed"_s && geteuid() == 0)
            QSKIP("root may read everything");
        const QString file = folder.filePath(name);
        QCOMPARE(errorOf(file), file + u": "_s + reason);
    }

    // Reading, parsing and building each run out of memory somewhere on the way.
    void memoryRunsOut_data()
    {
        QTest::addColumn<int>("megabytes");
        for (const int megabytes : { 1, 16, 32, 64, 128, 2048 })
            QTest::addRow("%d MB", megabytes) << megabytes;
    }
    void memoryRunsOut()
    {
#ifdef __SANITIZE_ADDRESS__
        QSKIP("the address sanitizer has memory of its own, and ends where there is none");
#endif
        QFETCH(int, megabytes);
        constexpr int fileMegabytes = 20;
        const QString file = m_folder->filePath(u"large.json"_s);
        const QByteArray point("0.1234 0.5678 1,");
        writeFile(file,
            R"({ "format": "corvane-scene", "version": 1, "root":
                { "type": "Coordinates", "fields": { "point": "[)"
                + point.repeated((fileMegabytes << 20) / point.size()) + R"(]" } } })");
        SceneDocument document;
        QString error;
        QVERIFY(document.open(QStringLiteral(CORVANE_SCENES "/station.json"), &error));
        const KnNodePtr root = document.root();
        const rlimit former = limitMemory(static_cast<rlim_t>(megabytes) << 20);
        const bool opened = document.open(file, &error);
        CrvProfileReader profiles;
        profiles.readFile(file);
        setrlimit(RLIMIT_AS, &former);
        const QString outOfMemory = file + u": there is not enough memory to read the file"_s;
        QVERIFY2(opened || error == outOfMemory, qPrintable(error));
        QCOMPARE(document.root().get() != root.get(), opened);
        QVERIFY(megabytes < 1024 || opened);
        // There isn't even room for the file itself.
        QVERIFY(megabytes >= fileMegabytes || (!opened && profiles.errorText() == outOfMemory));
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(TestJsonFiles)
#include "test_json_files.moc"
